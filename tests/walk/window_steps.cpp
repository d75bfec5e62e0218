// What a clerk does by the windows of the command bar: dogs are added, numbered, listed, printed,
// and in the end all are cleared away.
#include "walk/desk.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

int IdOf(const QString& key) {
    return QStringView(key).mid(1).toInt();
}

/// At the left, where a tick box has its box.
void Press(QWidget& window, const char* name) {
    auto& button = Control<QAbstractButton>(window, name);
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
}

/// Fills the window of a new dog; the chosen owner.
int FillDog(Desk& desk, QWidget& window, const QString& name, int trida) {
    QTest::keyClicks(&Control<QLineEdit>(window, "txtbox(0)"), name);
    Control<QDateEdit>(window, "dtBorn").setDate(QDate(2002, 1, 1));
    Press(window, qPrintable(u"optClasses(%1)"_s.arg(trida - 1)));
    auto& owners = Control<QComboBox>(window, "cmbOwners");
    for (int presses = 1 + desk.Random(3); presses > 0; --presses)
        QTest::keyClick(&owners, Qt::Key_Down);
    return owners.currentData().toInt();
}

QString AddDog(Desk& desk) {
    const QString breed = desk.OneOf(desk.model.nodes.Keys(u'R'));
    if (breed.isEmpty() || desk.model.dogs.size() > 16)
        return {};
    const int trida = breed == u"R949" ? 4 : 5;
    const QString parent = desk.model.withClasses ? u"T%1|%2"_s.arg(breed).arg(trida) : breed;
    // A class that was hidden as empty couldn't take the dog.
    if (!desk.model.nodes.Has(parent))
        return {};
    desk.model.selected = breed;
    if (desk.model.dogs.begin()->second.number.value_or(0) > 0) {
        desk.platform.ExpectMessage(u"Psa nelze přidat. Psi mají přiřazena čísla"_s);
        desk.Choose(breed, 603);
        return u"refused dog of "_s + breed;
    }
    DeskDog dog;
    dog.name = (desk.OneIn(2) ? u"Dag"_s : u"Iris"_s) +
               u" %1"_s.arg(desk.Random(1000), 3, 10, QLatin1Char('0'));
    dog.breed = IdOf(breed);
    dog.male = true;
    dog.trida = trida;
    const bool sure = !desk.OneIn(4);
    WhileOpen([&] { desk.Choose(breed, 603); },
              [&](QWidget& window) {
                  dog.owner = FillDog(desk, window, dog.name, dog.trida);
                  Press(window, sure ? "cmd_OK" : "cmdCancel");
              });
    desk.model.editorBreed = dog.breed;
    if (sure) {
        dog.firstDog = desk.model.DogsOfOwner(dog.owner).empty();
        desk.model.dogs[++desk.model.lastDog] = dog;
        desk.model.selected = u"P%1"_s.arg(desk.model.lastDog);
        desk.model.nodes.AddBelow(parent, desk.model.selected, dog.name);
    }
    desk.model.Return();
    return (sure ? u"add "_s : u"nearly add "_s) + desk.model.selected;
}

/// Opens the settings on the page of the button, runs `inside` and leaves them.
void InSettings(Desk& desk, const char* button, const std::function<void(QWidget&)>& inside) {
    WhileOpen([&] { desk.Trigger(u"SETTINGS"_s); },
              [&](QWidget& window) {
                  auto& pages = Control<QTabWidget>(window, "XTab");
                  for (int page = 0; page < pages.count(); ++page)
                      if (pages.widget(page)->findChild<QWidget*>(QString::fromLatin1(button)))
                          pages.setCurrentIndex(page);
                  inside(window);
                  QTest::keyClick(&window, Qt::Key_Escape);
              });
}

QString Number(Desk& desk) {
    const bool remove = desk.model.AnyNumbered();
    const bool sure = !desk.OneIn(4);
    const char* button = remove ? "cmdRemoveNumbers" : "cmdGenerateNumbers";
    InSettings(desk, button, [&](QWidget& window) {
        desk.platform.ExpectMessage(remove ? u"Určitě zrušit pořadová čísla psů?"_s
                                           : u"Určitě vygenerovat pořadová čísla psů?"_s,
                                    sure ? MessageAnswer::Yes : MessageAnswer::No);
        Press(window, button);
    });
    if (sure && remove) {
        for (auto& [id, dog] : desk.model.dogs)
            dog.number = 0;
        desk.model.LoadTree();
    } else if (sure) {
        desk.model.NumberDogs();
    }
    desk.model.Return();
    return (remove ? u"remove numbers"_s : u"number"_s) + (sure ? u""_s : u" (no)"_s);
}

QString PrintCatalogue(Desk& desk) {
    const int before = desk.platform.shownDocuments;
    WhileOpen([&] { desk.Trigger(u"EXPORT:KATALOG"_s); },
              [](QWidget& window) { Press(window, "cmdOK"); });
    EXPECT_EQ(desk.platform.shownDocuments, before + 1);
    desk.platform.wordOperations.clear();
    desk.model.Return();
    return u"print the catalogue"_s;
}

} // namespace

const std::vector<DeskStep>& StepsInWindows() {
    static const std::vector<DeskStep> steps{AddDog, AddDog, Number, PrintCatalogue};
    return steps;
}

void ClearShow(Desk& desk) {
    const bool payments = desk.OneIn(2);
    InSettings(desk, "cmdClearDatabase", [&](QWidget& settings) {
        desk.platform.ExpectMessage(
            u"Vymazání databáze je zásadní krok. Ve vybraných tabulkách ztratíte veškerá data "
            "bez možnosti opravy. Jste si jist?"_s,
            MessageAnswer::Yes);
        desk.platform.ExpectMessage(u"Vybrané položky byly vymazány."_s);
        WhileOpen([&] { Press(settings, "cmdClearDatabase"); },
                  [&](QWidget& window) {
                      if (payments)
                          Press(window, "chkTable(7)");
                      Press(window, "cmdCleaa");
                  });
    });
    desk.model.Clear();
    if (payments)
        desk.model.payments.clear();
    desk.model.Return(true);
}

} // namespace lorvo::test
