#include "reliability/edits.h"

#include "office/cards/entry_ticks.h"
#include "platform/real_services.h"
#include "store/data_module.h"
#include "store/kruhy.h"
#include "store/majitele.h"
#include "store/psi.h"
#include "store/psi_oceneni.h"
#include "store/psi_ve_vystavach.h"
#include "store/query.h"
#include "store/uhrady.h"
#include "store/vazby_souteze.h"
#include "store/vystavy.h"
#include "support/temp_database.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

/// Where one edit writes several rows, their numbers lie so far apart.
constexpr int kApart = 1000;
constexpr int kDog = 5;

int NumberOf(const char* statement) {
    Query query(TheDataModule().Conn1, statement);
    return query.Next() ? query.Int(0) : kHalf;
}

/// The edit that wrote `numbers`: the first, and each next one kApart above it.
int FirstIfInStep(const std::vector<int>& numbers, std::size_t count) {
    if (numbers.empty())
        return 0;
    bool inStep = numbers.size() == count;
    for (std::size_t i = 0; inStep && i < count; ++i)
        inStep = numbers[i] == numbers[0] + static_cast<int>(i) * kApart;
    return inStep ? numbers[0] : kHalf;
}

std::vector<int> InSteps(int first, int count) {
    std::vector<int> numbers;
    for (int i = 0; i < count; ++i)
        numbers.push_back(first + i * kApart);
    return numbers;
}

/// The number that all these texts are.
int IfAllAre(const std::vector<QString>& texts) {
    for (const QString& text : texts)
        if (text != texts.front())
            return kHalf;
    return texts.front().toInt();
}

CheckLine Ticked(QChar letter, int ID, LineIcon icon) {
    CheckLine line;
    line.key = letter + QString::number(ID);
    line.icon = icon;
    line.checked = true;
    return line;
}

// Edits of one row --------------------------------------------------------------------------------

void AddRing(int number, const QString&) {
    InsertRing(QString::number(number));
}
int RingsAdded(const QString&) {
    const std::vector<Kruhy> rings = Rings();
    return rings.empty() || rings.back().Nazev.toInt() == static_cast<int>(rings.size())
               ? static_cast<int>(rings.size())
               : kHalf;
}

void RenameTheRing(int number, const QString&) {
    RenameRing(1, QString::number(number));
}
int RingRenamed(const QString&) {
    return RingByID(1)->Nazev.toInt();
}

Psi DogOf(int number) {
    Psi dog;
    dog.ID = kDog;
    dog.Jmeno = dog.ChovnaStanice = dog.Otec = dog.Matka = dog.PK = QString::number(number);
    dog.Poznamka = dog.Chovatel = QString::number(number);
    dog.Trida = dog.BarvaID = number;
    return dog;
}
int NumberOfDog(const Psi& dog) {
    return IfAllAre({dog.Jmeno, dog.ChovnaStanice, dog.Otec, dog.Matka, dog.PK, dog.Poznamka,
                     dog.Chovatel, QString::number(dog.Trida), QString::number(dog.BarvaID)});
}

void AddDog(int number, const QString&) {
    InsertDog(DogOf(number));
}
int DogsAdded(const QString&) {
    const int count = CountDogs();
    if (count == 0)
        return 0;
    const auto last = DogByID(count);
    return last && NumberOfDog(*last) == count ? count : kHalf;
}

void ChangeDog(int number, const QString&) {
    UpdateDog(DogOf(number));
}
int DogChanged(const QString&) {
    const Psi dog = *DogByID(kDog);
    return dog.Jmeno.isEmpty() ? 0 : NumberOfDog(dog);
}

void MoveDog(int number, const QString&) {
    MoveDogToBreed(kDog, number);
}
int DogMoved(const QString&) {
    return DogByID(kDog)->PlemenoID;
}

void SetClosing(int number, const QString&) {
    SetFirstClosing(number, true);
}
int ClosingsSet(const QString&) {
    const int count = NumberOf("SELECT COUNT(*) FROM Psi WHERE PrvniUzaverka");
    return NumberOf("SELECT MAX(ID) FROM Psi WHERE PrvniUzaverka") == count ? count : kHalf;
}

void TakePayment(int number, const QString&) {
    Uhrady payment;
    payment.ID_Psa = kDog;
    payment.Castka = payment.Kc = Currency::FromUnits(number);
    InsertPayment(payment);
}
int PaymentsTaken(const QString&) {
    const int count = CountPayments();
    const Currency sum = PaidForDog(kDog);
    return sum == Currency::FromUnits(count * (count + 1) / 2) ? count : kHalf;
}

void RemovePayment(int number, const QString&) {
    DeletePayment(number);
}
int PaymentsRemoved(const QString&) {
    const int left = CountPayments();
    return left == 0 || NumberOf("SELECT MIN(ID) FROM Uhrady") == kMostEdits - left + 1
               ? kMostEdits - left
               : kHalf;
}

void ChangeOwner(int number, const QString&) {
    Majitele owner;
    owner.ID = 1;
    owner.Jmeno = owner.Ulice = owner.Mesto = owner.Telefon = QString::number(number);
    owner.PSC = number;
    UpdateOwner(owner);
}
int OwnerChanged(const QString&) {
    const Majitele owner = *OwnerByID(1);
    return owner.Jmeno.isEmpty() ? 0
                                 : IfAllAre({owner.Jmeno, owner.Ulice, owner.Mesto, owner.Telefon,
                                             QString::number(owner.PSC)});
}

void ChangeFees(int number, const QString&) {
    std::array<Currency, kFeeColumns> fees;
    fees.fill(Currency::FromUnits(number));
    UpdateShow(1, QString::number(number), fees);
}
int FeesChanged(const QString&) {
    const int number = ShowByID(1)->Nazev.toInt();
    for (const std::optional<Currency>& fee : ShowFees(1))
        if (fee.value_or(Currency()) != Currency::FromUnits(number))
            return kHalf;
    return number;
}

// Edits of several rows ---------------------------------------------------------------------------

void MarkDog(int number, const QString&) {
    EditRun run(TheDataModule().Conn1);
    ClearFirstDogs(7);
    MarkFirstDog(number);
    run.Finish();
}
int DogMarked(const QString&) {
    const int count = NumberOf("SELECT COUNT(*) FROM Psi WHERE PrvniPes");
    return count == 0 ? 0 : count == 1 ? NumberOf("SELECT ID FROM Psi WHERE PrvniPes") : kHalf;
}

void TickEntries(int number, const QString&) {
    WriteEntries(kDog,
                 {Ticked(u'V', number, LineIcon::Show), Ticked(u'k', number, LineIcon::Competition),
                  Ticked(u'k', number + kApart, LineIcon::Competition)});
}
int EntriesTicked(const QString&) {
    const int show = FirstIfInStep(ShowsOfDog(kDog), 1);
    return show == FirstIfInStep(CompetitionsOfDog(kDog), 2) ? show : kHalf;
}

void TickAwards(int number, const QString&) {
    CheckLines lines;
    for (const int award : InSteps(number, 3))
        lines.push_back(Ticked(u'C', award, LineIcon::None));
    WriteAwards(kDog, lines);
}
int AwardsTicked(const QString&) {
    return FirstIfInStep(AwardsOfDog(kDog), 3);
}

void EnterDogs(int number, const QString&) {
    EditRun run(TheDataModule().Conn1);
    DeleteDogsOfCompetition(3);
    AddDogsToCompetition(3, InSteps(number, 3));
    run.Finish();
}
int DogsEntered(const QString&) {
    std::vector<int> dogs;
    for (Query rows(TheDataModule().Conn1, "SELECT ID_Psa FROM Vazby_Souteze WHERE ID_Souteze = 3");
         rows.Next();)
        dogs.push_back(rows.Int(0));
    return FirstIfInStep(dogs, 3);
}

void GiveNumbers(int number, const QString&) {
    EditRun run(TheDataModule().Conn1);
    for (int dog = 1; dog <= kMostEdits; ++dog)
        SetDogNumber(dog, number);
    run.Finish();
}
int NumbersGiven(const QString&) {
    const int lowest = NumberOf("SELECT MIN(Cislo) FROM Psi");
    return NumberOf("SELECT MAX(Cislo) FROM Psi") == lowest ? lowest : kHalf;
}

// Beside the database -----------------------------------------------------------------------------

QString IniPath(const QString& folder) {
    return folder + u"/Lorvosys.ini"_s;
}
void WriteIni(int number, const QString& folder) {
    if (!MakeIniFiles()->Write(u"Main"_s, u"Ignorovat tridy"_s, QString::number(number),
                               IniPath(folder)))
        throw std::runtime_error("the ini file can't be written");
}
int IniWritten(const QString& folder) {
    return MakeIniFiles()->Read(u"Main"_s, u"Ignorovat tridy"_s, IniPath(folder)).toInt();
}

constexpr const char* kRing = "INSERT INTO Kruhy (ID, Nazev) VALUES (1, '')";
constexpr const char* kOneDog = "INSERT INTO Psi (ID) VALUES (5)";
constexpr const char* kManyDogs =
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 100) "
    "INSERT INTO Psi (ID, MajitelID, Cislo) SELECT i, 7, 0 FROM n";
constexpr const char* kManyPayments =
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 100) "
    "INSERT INTO Uhrady (ID, ID_Psa) SELECT i, 5 FROM n";

constexpr EditKind kKinds[] = {
    {"RingAdded", "", AddRing, RingsAdded},
    {"RingRenamed", kRing, RenameTheRing, RingRenamed},
    {"DogAdded", "", AddDog, DogsAdded},
    {"DogChanged", kOneDog, ChangeDog, DogChanged},
    {"DogMoved", kOneDog, MoveDog, DogMoved},
    {"ClosingSet", kManyDogs, SetClosing, ClosingsSet},
    {"FirstDogMarked", kManyDogs, MarkDog, DogMarked},
    {"EntriesTicked", kOneDog, TickEntries, EntriesTicked},
    {"AwardsTicked", kOneDog, TickAwards, AwardsTicked},
    {"DogsEntered", kOneDog, EnterDogs, DogsEntered},
    {"PaymentTaken", kOneDog, TakePayment, PaymentsTaken},
    {"PaymentRemoved", kManyPayments, RemovePayment, PaymentsRemoved},
    {"OwnerChanged", "INSERT INTO Majitele (ID, Jmeno) VALUES (1, '')", ChangeOwner, OwnerChanged},
    {"FeesChanged", "INSERT INTO Vystavy (ID, Nazev) VALUES (1, '')", ChangeFees, FeesChanged},
    {"NumbersGiven", kManyDogs, GiveNumbers, NumbersGiven},
    {"IniWritten", "", WriteIni, IniWritten},
};

} // namespace

std::span<const EditKind> EditKinds() {
    return kKinds;
}

void PrepareFolder(const EditKind& kind, const QString& folder) {
    const QString path = TempDatabase::CopyTo(folder);
    SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE).exec(kind.rows);
}

int FoundAtNextStart(const EditKind& kind, const QString& folder) {
    Connection& connection = TheDataModule().Conn1;
    const QString path = folder + u"/data.mdb"_s;
    connection.Open(path);
    const int found = kind.found(folder);
    connection.Close();
    SQLite::Database file(path.toStdString());
    return file.execAndGet("PRAGMA integrity_check").getString() == "ok" ? found : kHalf;
}

} // namespace lorvo::test
