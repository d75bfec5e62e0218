#include "support/generated_show.h"

#include "show/show_generator.h"
#include "store/data_module.h"

#include <QFile>
#include <stdexcept>

namespace lorvo::test {

namespace {

void MakeWordy(TempDatabase& database) {
    database.Execute("UPDATE Majitele SET Jmeno = 'Ing. Bohuslava Nepomucká-Krkoškovičová, "
                     "Ph.D.', Ulice = 'Náměstí Jiřího z Poděbrad a z Kunštátu 1824/17b', "
                     "Mesto = 'Brandýs nad Labem-Stará Boleslav', Telefon = '+420 777 123 456', "
                     "Email = 'bohuslava.nepomucka-krkoskovicova@chovatelskastanice.example' "
                     "WHERE ID = 1");
    database.Execute("UPDATE Psi SET Jmeno = 'Xaver Maxmilián z Údolí Modrých Hvězd nad Jizerou', "
                     "ChovnaStanice = 'z Údolí Modrých Hvězd', Otec = 'Ch. Baltazar Veliký z "
                     "Horních Dolů pod Zámkem', Matka = 'Jch. Esmeralda Krásná od Tří Studánek', "
                     "Chovatel = 'Ing. Bohuslava Nepomucká-Krkoškovičová, Ph.D.', "
                     "Poznamka = 'Platba přijde z účtu souseda, veterinární osvědčení doloží na "
                     "místě.', PlemenoID = 949, MajitelID = 1, Trida = 2 WHERE ID = 1");
    database.Execute("UPDATE Kruhy SET Nazev = 'Kruh 01 – hala A, u západního vchodu za "
                     "veterinární přejímkou' WHERE ID = 1");
}

QByteArray BytesOfShow() {
    TempDatabase database(TempDatabase::Content::Delivered);
    show::GenerateShow(*show::SizeNamed("club"), 12, show::Numbers::Some);
    MakeWordy(database);
    TheDataModule().Conn1.Close();
    QFile file(database.Path());
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("no show was made");
    return file.readAll();
}

} // namespace

void PutGeneratedShow(TempDatabase& database) {
    TheDataModule().Conn1.Close();
    static const QByteArray bytes = BytesOfShow();
    QFile file(database.Path());
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("the show can't be written");
    file.close();
    database.Reopen();
}

} // namespace lorvo::test
