#pragma once
// What the tests of the dog editor share: a show on 14.5.2005, a breed, two owners, and the window.

#include "app/module_values.h"
#include "dogs/fm_Dog.h"
#include "store/routines_fixture.h"
#include "support/modal_driver.h"
#include "support/recording_main_window.h"
#include "support/recording_platform.h"

#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace lorvo::test {

class DogEditorTest : public RoutinesTest {
  protected:
    DogEditorTest() {
        Module() = ModuleValues();
        platform.now = DateValue::FromCalendar(2005, 5, 1);
        AddLink("Ostatni", {{"DatumVystavy", DateValue::FromCalendar(2005, 5, 14)}});
        breed = Add("Plemena", {{"Nazev", Text("Chodský pes")}});
        jana = Add("Majitele", {{"Jmeno", Text("Jana")},
                                {"Prijmeni", Text("Malá")},
                                {"Ulice", Text("Lesní 1")},
                                {"Mesto", Text("Kolín")},
                                {"PSC", 1234},
                                {"Telefon", Text("777 123")},
                                {"Email", Text("jana@lesni.cz")}});
        petr = Add("Majitele", {{"Jmeno", Text("Petr")},
                                {"Prijmeni", Text("Čech")},
                                {"Mesto", Text("Zlín")},
                                {"PSC", 76001}});
        tree.AddNode(Breed(), Text("Chodský pes"));
    }

    QString Breed() const { return QStringLiteral("R%1").arg(breed); }
    static QString Node(int dog) { return QStringLiteral("P%1").arg(dog); }

    /// Opens the window to add a dog to the breed.
    void AddDog(const std::function<void(QWidget&)>& inside) {
        tree.selected = Breed();
        Open({true, breed}, inside);
    }
    /// Opens the window on a dog of the tree.
    void EditDog(int dog, const std::function<void(QWidget&)>& inside) {
        tree.selected = Node(dog);
        if (!tree.NodeExists(Node(dog)))
            tree.AddNode(Node(dog), Text("Rex"), Breed());
        Open({false, breed}, inside);
    }
    /// A dog in the database: born 14.5.2003, of Jana, in the open class.
    int StoredDog(Assignments more = {}) {
        Assignments fields = {{"Jmeno", Text("Rex")},
                              {"PlemenoID", breed},
                              {"MajitelID", jana},
                              {"PohlaviPes", true},
                              {"DatumNar", DateValue::FromCalendar(2003, 5, 14)},
                              {"Trida", 5},
                              {"PrvniUzaverka", true}};
        for (auto& field : more)
            fields.push_back(std::move(field));
        return Add("Psi", fields);
    }

    static QLineEdit& Box(QWidget& window, int index) {
        return Control<QLineEdit>(window, ("txtbox(" + std::to_string(index) + ")").c_str());
    }
    static QRadioButton& Class(QWidget& window, int trida) {
        return Control<QRadioButton>(window,
                                     ("optClasses(" + std::to_string(trida - 1) + ")").c_str());
    }
    static void Press(QWidget& window, const char* button) {
        Control<QPushButton>(window, button).click();
    }
    static bool IsEnabled(QWidget& window, const char* control) {
        return Control<QWidget>(window, control).isEnabled();
    }
    static void SetBorn(QWidget& window, int year, int month, int day) {
        Control<QDateEdit>(window, "dtBorn").setDate({year, month, day});
    }
    static void ChooseOwner(QWidget& window, const char* line) {
        auto& owners = Control<QComboBox>(window, "cmbOwners");
        const int index = owners.findText(Text(line));
        ASSERT_GE(index, 0) << line;
        owners.setCurrentIndex(index);
        Q_EMIT owners.activated(index);
    }
    /// Name, date of birth, class and owner that make a dog which can be saved.
    static void FillIn(QWidget& window, const char* name = "Alík") {
        Box(window, 0).setText(Text(name));
        SetBorn(window, 2003, 5, 14);
        Class(window, 5).click();
        ChooseOwner(window, "Petr  Zlín");
    }
    /// One field of the only dog, or of the dog of that name.
    static std::string Dog(const std::string& field, const char* name = "Alík") {
        const Texts texts =
            Column("SELECT " + field + " FROM Psi WHERE Jmeno = '" + std::string(name) + "'");
        return texts.size() == 1 ? texts[0] : std::to_string(texts.size()) + " rows";
    }

    RecordingPlatform platform;
    RecordingMainWindow tree;
    int breed = 0;
    int jana = 0;
    int petr = 0;

  private:
    static void Open(const DogTask& task, const std::function<void(QWidget&)>& inside) {
        fm_Dog window(task, nullptr);
        WhileOpen([&] { OpenModal(window); }, inside);
    }
};

} // namespace lorvo::test
