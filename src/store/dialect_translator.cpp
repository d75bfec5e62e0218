#include "store/dialect_translator.h"

#include "platform/values/errors.h"
#include "store/expression_writer.h"
#include "store/statement_parser.h"

#include <algorithm>

namespace lorvo {

namespace {

void AppendListed(std::string& list, const std::string& item) {
    if (!list.empty())
        list += ", ";
    list += item;
}

class Translator {
  public:
    Translator(const StatementTokens& statement, const Schema& schema) : schema_(schema) {
        result_.currencyParameters.resize(static_cast<std::size_t>(statement.parameters));
    }

    Translation Run(const Statement& statement) {
        if (statement.deletion) {
            WriteDelete(*statement.deletion);
        } else {
            result_.isSelect = true;
            result_.sql = WriteSelect(*statement.select, nullptr).sql;
        }
        return std::move(result_);
    }

  private:
    /// What has been written of one SELECT.
    struct Written {
        Scope scope;
        std::vector<WrittenExpression> values;
        std::vector<std::string> names;
        bool isAggregate = false;
    };

    void WriteDelete(const DeleteStatement& deletion) {
        const Scope scope{nullptr, {MakeSource(deletion.from)}};
        const Source& source = scope.sources.front();
        result_.table = source.table->name;
        result_.sql = "DELETE FROM " + QuotedName(source.table->name) + " AS " + source.written;
        if (deletion.where)
            result_.sql += " WHERE " + MakeWriter(scope).WriteCondition(*deletion.where);
    }

    /// The whole SELECT, or a sub-select when there is an outer scope.
    WrittenExpression WriteSelect(const SelectStatement& select, const Scope* outer) {
        Written written{{outer, {}}, {}, {}, false};
        std::string tables;
        for (const TableReference& reference : select.from) {
            written.scope.sources.push_back(MakeSource(reference));
            const Source& source = written.scope.sources.back();
            AppendListed(tables, QuotedName(source.table->name) + " AS " + source.written);
        }
        WriteItems(select, written);
        const bool takesEdits = !outer && IsPlain(select, written);
        if (!outer)
            DescribeResult(written, takesEdits);
        WrittenExpression result;
        result.type = written.values.front().type;
        result.sql = (select.distinct ? "SELECT DISTINCT " : "SELECT ") + ListValues(written) +
                     (takesEdits ? ", " + RowNumber(written.scope.sources.front()) : "") +
                     " FROM " + tables + WriteClauses(select, written);
        if (outer && written.values.size() != 1)
            throw StoreError("Chyba v příkazu: vnořený příkaz má mít jedno pole.");
        if (outer)
            result.sql = '(' + result.sql + ')';
        return result;
    }

    /// Fields of one table's rows, each row by itself.
    static bool IsPlain(const SelectStatement& select, const Written& written) {
        return select.from.size() == 1 && !select.distinct &&
               std::none_of(written.values.begin(), written.values.end(),
                            [](const WrittenExpression& value) { return value.field.empty(); });
    }

    void WriteItems(const SelectStatement& select, Written& written) {
        const ExpressionWriter writer = MakeWriter(written.scope);
        for (const SelectItem& item : select.items) {
            if (item.isStar) {
                WriteStar(item.table, written);
                continue;
            }
            written.values.push_back(writer.Write(item.value));
            const WrittenExpression& value = written.values.back();
            written.isAggregate |= value.isAggregate;
            const std::string number = std::to_string(999 + written.values.size());
            written.names.push_back(!item.alias.empty()   ? item.alias
                                    : value.field.empty() ? "Expr" + number
                                                          : value.field);
        }
    }

    static void WriteStar(const std::string& table, Written& written) {
        bool found = false;
        for (const Source& source : written.scope.sources) {
            if (!table.empty() && !SameName(table, source.alias))
                continue;
            found = true;
            for (const TableField& field : source.table->fields) {
                written.values.push_back(ExpressionWriter::WriteColumn(source, field));
                written.names.push_back(field.name);
            }
        }
        if (!found)
            throw StoreError("Neznámá tabulka " + table + '.');
    }

    void DescribeResult(const Written& written, bool takesEdits) {
        result_.table = written.scope.sources.front().table->name;
        result_.takesEdits = takesEdits;
        for (std::size_t i = 0; i < written.values.size(); ++i) {
            const WrittenExpression& value = written.values[i];
            result_.columns.push_back({written.names[i], value.type, value.table, value.field});
        }
    }

    std::string WriteClauses(const SelectStatement& select, const Written& written) {
        const ExpressionWriter writer = MakeWriter(written.scope);
        std::string clauses;
        if (select.where)
            clauses += " WHERE " + writer.WriteCondition(*select.where);
        // The order of a sub-select shows only in which rows its TOP takes.
        if (!written.scope.outer || select.topParameter >= 0) {
            const std::string order = WriteOrder(select, written, writer);
            if (!order.empty())
                clauses += " ORDER BY " + order;
        }
        if (select.topParameter >= 0)
            clauses += " LIMIT ?" + std::to_string(select.topParameter + 1);
        return clauses;
    }

    /// The order asked for, and behind it what breaks ties, so that no index ever shows.
    std::string WriteOrder(const SelectStatement& select, const Written& written,
                           const ExpressionWriter& writer) const {
        std::string order;
        for (const OrderTerm& term : select.orderBy)
            AppendListed(order, ExpressionWriter::OrderKey(WriteOrderTerm(term, written, writer)) +
                                    (term.descending ? " DESC" : ""));
        if (select.distinct) {
            for (const WrittenExpression& value : written.values)
                AppendListed(order, ExpressionWriter::OrderKey(value));
        } else if (!written.isAggregate) {
            for (const Source& source : written.scope.sources)
                AppendListed(order, RowNumber(source));
        }
        return order;
    }

    /// A term may be the name that the SELECT gave to a value.
    static WrittenExpression WriteOrderTerm(const OrderTerm& term, const Written& written,
                                            const ExpressionWriter& writer) {
        if (term.value.kind == Expression::Kind::Literal ||
            term.value.kind == Expression::Kind::Text)
            throw StoreError("Chyba v příkazu: řadit lze jen podle polí.");
        if (term.value.kind == Expression::Kind::Column && term.value.table.empty())
            for (std::size_t i = 0; i < written.names.size(); ++i)
                if (SameName(written.names[i], term.value.name))
                    return written.values[i];
        return writer.Write(term.value);
    }

    static std::string ListValues(const Written& written) {
        std::string list;
        for (const WrittenExpression& value : written.values)
            AppendListed(list, value.sql);
        return list;
    }

    /// The row's number, which is the ID where a table has one.
    static std::string RowNumber(const Source& source) { return source.written + ".rowid"; }

    Source MakeSource(const TableReference& reference) {
        const Table* table = schema_.FindTable(reference.table);
        if (!table)
            throw StoreError("Neznámá tabulka " + reference.table + '.');
        return {table, reference.alias, 't' + std::to_string(++sources_)};
    }

    ExpressionWriter MakeWriter(const Scope& scope) {
        return {scope, result_.currencyParameters,
                [this](const SelectStatement& select, const Scope& outer) {
                    return WriteSelect(select, &outer);
                }};
    }

    const Schema& schema_;
    Translation result_;
    int sources_ = 0;
};

} // namespace

Translation Translate(const StatementTokens& statement, const Schema& schema) {
    return Translator(statement, schema).Run(ParseStatement(statement.tokens));
}

} // namespace lorvo
