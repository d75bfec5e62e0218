#include "office/tree/node_key.h"

#include <array>
#include <charconv>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

NodeKey ClassFromText(const QString& text) {
    const qsizetype bar = text.indexOf(u'|');
    return NodeKey::Class(text.mid(2, bar - 2).toInt(), text.mid(bar + 1).toInt());
}

/// The letter and the number, in one piece of memory: lists ask for many thousand keys.
QString Lettered(char letter, int id) {
    std::array<char, 12> text{letter};
    const auto end = std::to_chars(text.data() + 1, text.data() + text.size(), id).ptr;
    return QString::fromLatin1(text.data(), end - text.data());
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
    switch (kind) {
    case NodeKind::UnassignedRoot:
    case NodeKind::Ring:
        return Lettered('K', id);
    case NodeKind::Breed:
        return Lettered('R', id);
    case NodeKind::Class:
        return u"TR%1|%2"_s.arg(id).arg(trida);
    case NodeKind::Dog:
        return Lettered('P', id);
    }
    Q_UNREACHABLE();
}

} // namespace lorvo
