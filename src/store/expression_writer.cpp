#include "store/expression_writer.h"

#include "platform/values/errors.h"

#include <algorithm>

namespace lorvo {

namespace {

std::string BoundParameter(int parameter) {
    return '?' + std::to_string(parameter + 1);
}

WrittenExpression Condition(std::string sql) {
    return {std::move(sql), FieldType::Boolean, true, false, {}, {}};
}

WrittenExpression Typed(std::string sql, FieldType type) {
    return {std::move(sql), type, false, false, {}, {}};
}

/// 1 or 0, never Null.
std::string Truth(const WrittenExpression& written) {
    return '(' + written.sql + " IS TRUE)";
}

/// The column of `source` that `column` names, written; nothing when it isn't there.
void CollectMatches(const Source& source, const Expression& column,
                    std::vector<WrittenExpression>& matches) {
    if (!column.table.empty() && !SameName(column.table, source.alias))
        return;
    if (const TableField* field = source.table->FindField(column.name))
        matches.push_back(ExpressionWriter::WriteColumn(source, *field));
}

std::string FullName(const Expression& column) {
    return column.table.empty() ? column.name : column.table + '.' + column.name;
}

} // namespace

std::string QuotedName(const std::string& name) {
    std::string quoted = "\"";
    for (const char c : name)
        quoted.append(c == '"' ? 2 : 1, c);
    return quoted + '"';
}

WrittenExpression ExpressionWriter::WriteColumn(const Source& source, const TableField& field) {
    return {source.written + '.' + QuotedName(field.name),
            field.type,
            false,
            false,
            source.alias,
            field.name};
}

std::string ExpressionWriter::OrderKey(const WrittenExpression& written) {
    if (written.type == FieldType::Text)
        return "czech_key(" + written.sql + ')';
    if (written.type == FieldType::Boolean)
        return '-' + Truth(written);
    return written.sql;
}

std::string ExpressionWriter::WriteCondition(const Expression& expression) const {
    const WrittenExpression written = Write(expression);
    if (written.type == FieldType::Text || written.type == FieldType::DateTime)
        throw StoreError("Chyba v příkazu: text ani datum nejsou podmínka.");
    const bool isStoredBoolean = written.type == FieldType::Boolean && !written.isCondition;
    return isStoredBoolean ? Truth(written) : '(' + written.sql + ')';
}

WrittenExpression ExpressionWriter::Write(const Expression& expression) const {
    using Kind = Expression::Kind;
    switch (expression.kind) {
    case Kind::Column:
        return WriteName(expression);
    case Kind::Literal:
        return Typed(BoundParameter(expression.parameter), FieldType::Integer);
    case Kind::Text:
        return Typed(BoundParameter(expression.parameter), FieldType::Text);
    case Kind::Parameter:
        return Typed(BoundParameter(expression.parameter), FieldType::Unknown);
    case Kind::True:
        return Typed("-1", FieldType::Boolean);
    case Kind::False:
        return Typed("0", FieldType::Boolean);
    case Kind::Null:
        return Typed("NULL", FieldType::Unknown);
    case Kind::Call:
        return WriteCall(expression);
    case Kind::Negate:
        return WriteNegated(expression);
    case Kind::Not:
        return Condition("NOT " + WriteCondition(expression.operands[0]));
    case Kind::Compare:
        return WriteCompare(expression);
    case Kind::IsNull:
        return Condition(Write(expression.operands[0]).sql + " IS NULL");
    case Kind::InList:
        return WriteInList(expression);
    case Kind::InSelect:
        return WriteInSelect(expression);
    case Kind::Subquery:
        return writeSubselect_(*expression.select, scope_);
    case Kind::Arithmetic:
        return WriteArithmetic(expression);
    case Kind::All:
        return WriteJoinedConditions(expression, " AND ");
    case Kind::Any:
        return WriteJoinedConditions(expression, " OR ");
    }
    throw StoreError("Chyba v příkazu.");
}

/// The nearest scope that knows the name decides, so that a sub-select can mean its own fields.
WrittenExpression ExpressionWriter::WriteName(const Expression& column) const {
    for (const Scope* scope = &scope_; scope; scope = scope->outer) {
        std::vector<WrittenExpression> matches;
        for (const Source& source : scope->sources)
            CollectMatches(source, column, matches);
        if (matches.size() > 1)
            throw StoreError("Pole " + FullName(column) + " je ve více tabulkách příkazu.");
        if (!matches.empty())
            return matches.front();
    }
    throw StoreError("Neznámé pole " + FullName(column) + '.');
}

WrittenExpression ExpressionWriter::WriteCall(const Expression& call) const {
    const bool isCount = SameName(call.name, "COUNT");
    if (call.operands.empty()) {
        if (!isCount)
            throw StoreError("Funkce " + call.name + " potřebuje pole.");
        WrittenExpression count = Typed("COUNT(*)", FieldType::Integer);
        count.isAggregate = true;
        return count;
    }
    const WrittenExpression operand = Write(call.operands[0]);
    const bool isText = operand.type == FieldType::Text;
    if (SameName(call.name, "LCASE"))
        return Typed("lcase(" + operand.sql + ')', FieldType::Text);
    const bool isSum = SameName(call.name, "SUM");
    const bool isExtreme = SameName(call.name, "MIN") || SameName(call.name, "MAX");
    if (!isCount && !isSum && !isExtreme)
        throw StoreError("Neznámá funkce " + call.name + '.');
    if ((isText && !isCount) || (isSum && operand.type == FieldType::DateTime))
        throw StoreError("Funkci " + call.name + " nelze použít na toto pole.");
    const bool isBoolean = operand.type == FieldType::Boolean && !isCount;
    return {(isCount                      ? "COUNT("
             : isSum                      ? "SUM("
             : SameName(call.name, "MIN") ? "MIN("
                                          : "MAX(") +
                (isBoolean ? OrderKey(operand) : operand.sql) + ')',
            isCount || (isSum && isBoolean) ? FieldType::Integer : operand.type,
            false,
            true,
            {},
            {}};
}

WrittenExpression ExpressionWriter::WriteNegated(const Expression& negate) const {
    const WrittenExpression operand = Write(negate.operands[0]);
    if (operand.type == FieldType::Text || operand.type == FieldType::DateTime)
        throw StoreError("Chyba v příkazu: minus nepatří před text ani datum.");
    const bool isBoolean = operand.type == FieldType::Boolean;
    return {"(-" + (isBoolean ? '(' + OrderKey(operand) + ')' : operand.sql) + ')',
            isBoolean ? FieldType::Integer : operand.type,
            false,
            operand.isAggregate,
            {},
            {}};
}

/// An amount beside a number: the number is taken as whole units. A literal is bound as an amount,
/// anything else is multiplied.
std::string ExpressionWriter::AsAmount(const Expression& expression,
                                       const WrittenExpression& written) const {
    const Expression* innermost = &expression;
    while (innermost->kind == Expression::Kind::Negate)
        innermost = &innermost->operands[0];
    if (innermost->kind == Expression::Kind::Literal ||
        innermost->kind == Expression::Kind::Parameter) {
        currencyParameters_[static_cast<std::size_t>(innermost->parameter)] = true;
        return written.sql;
    }
    if (written.type == FieldType::Integer)
        return '(' + written.sql + " * 10000)";
    if (written.type != FieldType::Currency && written.type != FieldType::Unknown)
        throw StoreError("Chyba v příkazu: částku lze porovnat jen s číslem.");
    return written.sql;
}

/// A boolean compares by what it means, so that Null equals false and any non-zero equals true.
WrittenExpression ExpressionWriter::WriteCompare(const Expression& compare) const {
    const Expression& left = compare.operands[0];
    const Expression& right = compare.operands[1];
    const WrittenExpression first = Write(left);
    const WrittenExpression second = Write(right);
    const std::string sign = ' ' + compare.name + ' ';
    if (first.type == FieldType::Boolean || second.type == FieldType::Boolean)
        return Condition('-' + Truth(first) + sign + '-' + Truth(second));
    if (first.type == FieldType::Currency || second.type == FieldType::Currency)
        return Condition(AsAmount(left, first) + sign + AsAmount(right, second));
    return Condition(first.sql + sign + second.sql);
}

WrittenExpression ExpressionWriter::WriteInList(const Expression& in) const {
    const WrittenExpression value = Write(in.operands[0]);
    const bool isBoolean = value.type == FieldType::Boolean;
    std::string list;
    for (std::size_t i = 1; i < in.operands.size(); ++i) {
        list += i > 1 ? ", " : "";
        const WrittenExpression listed = Write(in.operands[i]);
        list += isBoolean                           ? Truth(listed)
                : value.type == FieldType::Currency ? AsAmount(in.operands[i], listed)
                                                    : listed.sql;
    }
    return Condition((isBoolean ? Truth(value) : value.sql) + " IN (" + list + ')');
}

WrittenExpression ExpressionWriter::WriteInSelect(const Expression& in) const {
    const WrittenExpression value = Write(in.operands[0]);
    const WrittenExpression rows = writeSubselect_(*in.select, scope_);
    if ((value.type == FieldType::Currency) != (rows.type == FieldType::Currency))
        throw StoreError("Chyba v příkazu: částku lze hledat jen mezi částkami.");
    return Condition(value.sql + " IN " + rows.sql);
}

/// A plus joins texts as soon as one of the operands is a text; a Null among them gives Null.
WrittenExpression ExpressionWriter::WriteArithmetic(const Expression& chain) const {
    std::vector<WrittenExpression> operands;
    for (const Expression& operand : chain.operands)
        operands.push_back(Write(operand));
    const bool isText = std::any_of(operands.begin(), operands.end(), [](const auto& operand) {
        return operand.type == FieldType::Text;
    });
    if (isText && chain.signs.find('-') != std::string::npos)
        throw StoreError("Chyba v příkazu: texty nelze odčítat.");
    WrittenExpression result = Typed("(", isText ? FieldType::Text : FieldType::Integer);
    for (std::size_t i = 0; i < operands.size(); ++i) {
        const FieldType type = operands[i].type;
        if (type != FieldType::Text && type != FieldType::Integer && type != FieldType::Unknown)
            throw StoreError("Chyba v příkazu: sčítat lze jen texty nebo celá čísla.");
        if (i > 0)
            result.sql += isText ? " || " : std::string{' ', chain.signs[i], ' '};
        result.sql += operands[i].sql;
        result.isAggregate |= operands[i].isAggregate;
    }
    result.sql += ')';
    return result;
}

WrittenExpression ExpressionWriter::WriteJoinedConditions(const Expression& chain,
                                                          const char* keyword) const {
    std::string joined;
    for (const Expression& operand : chain.operands)
        joined += (joined.empty() ? "" : keyword) + WriteCondition(operand);
    return Condition('(' + joined + ')');
}

} // namespace lorvo
