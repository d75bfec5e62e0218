#include "office/tree/node_key.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

NodeKey ClassFromText(const QString& text) {
    const qsizetype bar = text.indexOf(u'|');
    return NodeKey::Class(text.mid(2, bar - 2).toInt(), text.mid(bar + 1).toInt());
}

} // namespace

std::optional<NodeKey> NodeKey::FromText(const QString& text) {
    const char16_t letter = text.isEmpty() ? u'\0' : text.front().unicode();
    const int number = QStringView(text).mid(1).toInt();
    NodeKey key;
    switch (letter) {
    case u'K':
        key = Ring(number);
        break;
    case u'R':
        key = Breed(number);
        break;
    case u'T':
        key = ClassFromText(text);
        break;
    case u'P':
        key = Dog(number);
        break;
    default:
        return {};
    }
    if (key.ToText() != text)
        return {};
    return key;
}

std::optional<int> NodeKey::IdIn(const QString& text, NodeKind kind) {
    const std::optional<NodeKey> key = FromText(text);
    return key && key->kind == kind ? std::optional<int>(key->id) : std::nullopt;
}

QString NodeKey::ToText() const {
    const QString number = QString::number(id);
    switch (kind) {
    case NodeKind::UnassignedRoot:
    case NodeKind::Ring:
        return u'K' + number;
    case NodeKind::Breed:
        return u'R' + number;
    case NodeKind::Class:
        return u"TR%1|%2"_s.arg(id).arg(trida);
    case NodeKind::Dog:
        return u'P' + number;
    }
    Q_UNREACHABLE();
}

} // namespace lorvo
