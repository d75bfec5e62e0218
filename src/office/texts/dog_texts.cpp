#include "office/texts/dog_texts.h"

#include "app/module_values.h"
#include "platform/platform.h"
#include "platform/values/errors.h"

#include <QStringBuilder>

namespace lorvo {

using namespace Qt::StringLiterals;

QString FullName(const QString& jmeno, const QString& chovnaStanice) {
    return jmeno % u' ' % chovnaStanice;
}

QString SexText(bool male) {
    return male ? u"Pes"_s : u"Fena"_s;
}

const QString& ClassName(int trida, const TextTable& names, const QString& jmeno) {
    if (trida < 1 || trida > kTableSlots)
        throw RangeError(u"Pes „%1“ má třídu %2, ale třídy jsou jen 1 až %3."_s
                             .arg(jmeno, QString::number(trida), QString::number(kTableSlots))
                             .toStdString());
    return names[static_cast<std::size_t>(trida - 1)];
}

const TextTable& ClassNamesOf(ClassList list) {
    return list == ClassList::Special ? Tables().SpecialClassNames : Module().ClassNames;
}

ClassList ClassListOf(int plemenoID) {
    return plemenoID == kSpecialBreedID ? ClassList::Special : ClassList::Standard;
}

QString ClosingText(bool first) {
    return first ? u"I"_s : u"II"_s;
}

QString YesNo(bool yes) {
    return yes ? u"Ano"_s : u"Ne"_s;
}

QString DateOrEmpty(const std::optional<DateValue>& date) {
    return date ? ThePlatform().locale->DateText(*date) : QString();
}

QString NumberOrEmpty(const std::optional<int>& cislo) {
    return cislo ? QString::number(*cislo) : QString();
}

const QString& BreedName(const QString& nazev, const QString& nazevOrig) {
    return nazev.isEmpty() ? nazevOrig : nazev;
}

QString UnassignedText() {
    return u"-nezařazeno-"_s;
}

} // namespace lorvo
