#include "show/show_names.h"

namespace lorvo::show {

using namespace Qt::StringLiterals;

namespace {

using Text = const char16_t*;

constexpr Text kMen[] = {u"Jan",    u"Petr",  u"Josef",   u"Pavel",  u"Jiří",    u"Martin",
                         u"Tomáš",  u"Jakub", u"Lukáš",   u"Ondřej", u"Vojtěch", u"Zdeněk",
                         u"Miloš",  u"Karel", u"Václav",  u"Radek",  u"Štěpán",  u"Řehoř",
                         u"Ctibor", u"Aleš",  u"Bohumil", u"Dušan"};
constexpr Text kWomen[] = {u"Jana",     u"Marie",     u"Eva",     u"Hana",   u"Anna",  u"Lenka",
                           u"Kateřina", u"Lucie",     u"Věra",    u"Alena",  u"Petra", u"Jitka",
                           u"Šárka",    u"Zdeňka",    u"Ludmila", u"Zuzana", u"Ivana", u"Markéta",
                           u"Barbora",  u"Jaroslava", u"Růžena",  u"Žaneta", u"Chloe", u"Dagmar"};

struct Surname {
    Text man;
    Text woman;
};
constexpr Surname kSurnames[] = {{u"Novák", u"Nováková"},
                                 {u"Svoboda", u"Svobodová"},
                                 {u"Novotný", u"Novotná"},
                                 {u"Dvořák", u"Dvořáková"},
                                 {u"Černý", u"Černá"},
                                 {u"Procházka", u"Procházková"},
                                 {u"Kučera", u"Kučerová"},
                                 {u"Veselý", u"Veselá"},
                                 {u"Horák", u"Horáková"},
                                 {u"Němec", u"Němcová"},
                                 {u"Pokorný", u"Pokorná"},
                                 {u"Marek", u"Marková"},
                                 {u"Pospíšil", u"Pospíšilová"},
                                 {u"Hájek", u"Hájková"},
                                 {u"Jelínek", u"Jelínková"},
                                 {u"Král", u"Králová"},
                                 {u"Růžička", u"Růžičková"},
                                 {u"Beneš", u"Benešová"},
                                 {u"Fiala", u"Fialová"},
                                 {u"Sedláček", u"Sedláčková"},
                                 {u"Doležal", u"Doležalová"},
                                 {u"Zeman", u"Zemanová"},
                                 {u"Kolář", u"Kolářová"},
                                 {u"Krejčí", u"Krejčí"},
                                 {u"Čermák", u"Čermáková"},
                                 {u"Urban", u"Urbanová"},
                                 {u"Vaněk", u"Vaňková"},
                                 {u"Blažek", u"Blažková"},
                                 {u"Kříž", u"Křížová"},
                                 {u"Kovář", u"Kovářová"},
                                 {u"Bartoš", u"Bartošová"},
                                 {u"Vlček", u"Vlčková"},
                                 {u"Polák", u"Poláková"},
                                 {u"Musil", u"Musilová"},
                                 {u"Šimek", u"Šimková"},
                                 {u"Konečný", u"Konečná"},
                                 {u"Malý", u"Malá"},
                                 {u"Holub", u"Holubová"},
                                 {u"Štěpánek", u"Štěpánková"},
                                 {u"Chalupa", u"Chalupová"},
                                 {u"Žák", u"Žáková"},
                                 {u"Řezníček", u"Řezníčková"},
                                 {u"Ďurica", u"Ďuricová"},
                                 {u"Müller", u"Müllerová"},
                                 {u"O'Connor", u"O'Connorová"},
                                 {u"Chládek", u"Chládková"},
                                 {u"Cibulka", u"Cibulková"},
                                 {u"Úlehla", u"Úlehlová"}};

constexpr Town kTowns[] = {{u"Praha", 11000, u""},
                           {u"Brno", 60200, u""},
                           {u"Ostrava", 70200, u""},
                           {u"Plzeň", 30100, u""},
                           {u"Liberec", 46001, u""},
                           {u"Olomouc", 77900, u""},
                           {u"České Budějovice", 37001, u""},
                           {u"Hradec Králové", 50002, u""},
                           {u"Ústí nad Labem", 40001, u""},
                           {u"Pardubice", 53002, u""},
                           {u"Zlín", 76001, u""},
                           {u"Kladno", 27201, u""},
                           {u"Most", 43401, u""},
                           {u"Opava", 74601, u""},
                           {u"Frýdek-Místek", 73801, u""},
                           {u"Jihlava", 58601, u""},
                           {u"Teplice", 41501, u""},
                           {u"Děčín", 40502, u""},
                           {u"Karlovy Vary", 36001, u""},
                           {u"Jablonec nad Nisou", 46601, u""},
                           {u"Mladá Boleslav", 29301, u""},
                           {u"Prostějov", 79601, u""},
                           {u"Přerov", 75002, u""},
                           {u"Česká Lípa", 47001, u""},
                           {u"Třebíč", 67401, u""},
                           {u"Tábor", 39001, u""},
                           {u"Znojmo", 66902, u""},
                           {u"Příbram", 26101, u""},
                           {u"Cheb", 35002, u""},
                           {u"Kolín", 28002, u""},
                           {u"Trutnov", 54101, u""},
                           {u"Písek", 39701, u""},
                           {u"Kroměříž", 76701, u""},
                           {u"Vsetín", 75501, u""},
                           {u"Šumperk", 78701, u""},
                           {u"Břeclav", 69002, u""},
                           {u"Litoměřice", 41201, u""},
                           {u"Chrudim", 53701, u""},
                           {u"Strakonice", 38601, u""},
                           {u"Klatovy", 33901, u""},
                           {u"Žďár nad Sázavou", 59101, u""},
                           {u"Kutná Hora", 28401, u""},
                           {u"Náchod", 54701, u""},
                           {u"Žatec", 43801, u""},
                           {u"Jičín", 50601, u""},
                           {u"Bratislava", 81101, u"Slovensko"},
                           {u"Košice", 4001, u"Slovensko"},
                           {u"Žilina", 1001, u"Slovensko"},
                           {u"Kraków", 31019, u"Polsko"},
                           {u"Wrocław", 50103, u"Polsko"},
                           {u"Dresden", 1067, u"Německo"}};

constexpr Text kStreets[] = {
    u"Nádražní",   u"Školní",     u"Zahradní",  u"Husova",     u"Palackého", u"Komenského",
    u"Masarykova", u"Na Výsluní", u"U Lesa",    u"Pod Strání", u"Polní",     u"Lipová",
    u"Krátká",     u"Dlouhá",     u"Jiráskova", u"Žižkova",    u"Tyršova",   u"Riegrova",
    u"Sokolská",   u"K Rybníku",  u"Březová",   u"Na Příkopě", u"Mlýnská",   u"Luční"};

constexpr Text kMales[] = {
    u"Alan",       u"Argo",    u"Arek",   u"Baron",  u"Bart",  u"Ben",    u"Brit",
    u"Cézar",      u"Charlie", u"Dan",    u"Dasty",  u"Egon",  u"Eros",   u"Faust",
    u"Fido",       u"Gar",     u"Goro",   u"Hektor", u"Hugo",  u"Iron",   u"Ivan",
    u"Jack",       u"Jerry",   u"Kazan",  u"Kim",    u"Lord",  u"Lumpík", u"Max",
    u"Max",        u"Nero",    u"Norik",  u"Oskar",  u"Pajda", u"Rex",    u"Řízek",
    u"Samo",       u"Šarik",   u"Tarzan", u"Upír",   u"Ferda", u"Žolík",  u"Zar",
    u"D'Artagnan", u"Señor",   u"Wolf",   u"Xero",   u"Yukon", u"Quido",  u"Vasil"};
constexpr Text kFemales[] = {
    u"Aida",   u"Amálka", u"Astra", u"Bára",  u"Bela",    u"Cita",    u"Chika",
    u"Dora",   u"Diana",  u"Elza",  u"Erika", u"Fany",    u"Fatima",  u"Gina",
    u"Gita",   u"Hera",   u"Hexe",  u"Ina",   u"Iris",    u"Jasmína", u"Jessy",
    u"Kora",   u"Kessy",  u"Laďka", u"Lady",  u"Mája",    u"Molly",   u"Naty",
    u"Nikita", u"Ofélie", u"Penny", u"Queen", u"Rozárka", u"Růženka", u"Sára",
    u"Šelma",  u"Šejla",  u"Tajga", u"Týna",  u"Uršula",  u"Vilma",   u"Wendy",
    u"Xena",   u"Yetti",  u"Zara",  u"Žofie", u"Čiko",    u"Ťapka",   u"Maïa"};

// Kennels are named after a place: an adjective and a noun in the second case.
constexpr Text kKennelAdjectives[] = {
    u"Bílé",  u"Černé",  u"Divoké", u"Dlouhé",    u"Hluboké",  u"Kouzelné", u"Královské",
    u"Lesní", u"Malé",   u"Modré",  u"Pohádkové", u"Rychlé",   u"Staré",    u"Stříbrné",
    u"Tiché", u"Úžasné", u"Větrné", u"Zlaté",     u"Šumavské", u"Žulové"};
constexpr Text kKennelNouns[] = {u"hájovny",  u"hvězdy", u"louky", u"paseky",  u"pevnosti",
                                 u"planiny",  u"rokle",  u"řeky",  u"skály",   u"stezky",
                                 u"studánky", u"věže",   u"vody",  u"zahrady", u"zátoky"};

constexpr Text kNotes[] = {u"Přijede až odpoledne", u"Zaslat potvrzení poštou",
                           u"Doložit očkovací průkaz", u"Změna majitele v řízení",
                           u"Žádá kruh blízko vchodu"};

constexpr Text kStudBooks[] = {u"ČLP", u"ČMKU", u"SPKP", u"CMKU"};

QString ToText(Text text) {
    return QString::fromUtf16(text);
}

/// Letters without marks, in lower case.
QString Plain(const QString& text) {
    QString plain;
    for (const QChar c : text.toLower().normalized(QString::NormalizationForm_D)) {
        if (c >= u'a' && c <= u'z')
            plain += c;
    }
    return plain;
}

} // namespace

Person AnyPerson(Dice& dice) {
    const bool man = dice.Chance(45);
    const QString firstName = ToText(man ? dice.Pick(kMen) : dice.Pick(kWomen));
    const Surname& surname = dice.Pick(kSurnames);
    return {firstName, ToText(man ? surname.man : surname.woman)};
}

const Town& AnyTown(Dice& dice) {
    return dice.Pick(kTowns);
}

QString AnyStreet(Dice& dice) {
    const QString street = ToText(dice.Pick(kStreets));
    const int house = dice.Between(1, 2200);
    const QString place = dice.Chance(30) ? u'/' + QString::number(dice.Between(1, 60)) : QString();
    return street + u' ' + QString::number(house) + place;
}

QString AnyPhone(Dice& dice) {
    const QString digits = QString::number(dice.Between(601000000, 779999999));
    return u"+420 "_s + digits.left(3) + u' ' + digits.mid(3, 3) + u' ' + digits.mid(6);
}

QString EmailOf(const Person& person, int number) {
    return Plain(person.firstName) + u'.' + Plain(person.surname) + QString::number(number) +
           u"@example.org"_s;
}

QString AnyDogName(Dice& dice, bool male) {
    return ToText(male ? dice.Pick(kMales) : dice.Pick(kFemales));
}

QString AnyKennel(Dice& dice) {
    const QString adjective = ToText(dice.Pick(kKennelAdjectives));
    return u"od "_s + adjective + u' ' + ToText(dice.Pick(kKennelNouns));
}

QString AnyStudBookEntry(Dice& dice, int year) {
    const QString book = ToText(dice.Pick(kStudBooks));
    const int number = dice.Between(100, 99999);
    return u"%1/%2/%3"_s.arg(book).arg(number).arg(year % 100, 2, 10, QChar(u'0'));
}

QString AnyNote(Dice& dice) {
    return ToText(dice.Pick(kNotes));
}

} // namespace lorvo::show
