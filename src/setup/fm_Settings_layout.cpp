// The pages of the settings with their frames.
#include "app/module_values.h"
#include "forms/controls.h"
#include "setup/fm_Settings.h"

#include <QCheckBox>
#include <QEvent>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const DateValue kDesignedDate = DateValue::FromCalendar(2004, 5, 26);

QLabel* Note(const QString& text, QWidget* parent) {
    auto* note = new QLabel(text, parent);
    note->setWordWrap(true);
    return note;
}

// kept: classes-by-mouse
/// Changing the tree's shape by the mouse makes the tree stale at once, before anything is stored.
class ShapeWatcher : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonRelease)
            Module().TreeDirty = true;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

QWidget* fm_Settings::MakeSystemPage() {
    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    column->addWidget(MakeDatesFrame());
    column->addWidget(MakeNumbersFrame());
    column->addWidget(MakeDatabaseFrame());
    column->addWidget(MakeWizardFrame());
    column->addStretch();
    return page;
}

QWidget* fm_Settings::MakeDatesFrame() {
    auto* frame = new QGroupBox(u"Data"_s, this);
    auto* form = new QFormLayout;
    const auto picker = [&](const char* name, const QString& caption) {
        QDateEdit* made = DatePicker(QString::fromLatin1(name), frame);
        SetPickedDate(*made, kDesignedDate);
        form->addRow(CaptionFor(made, caption, frame), made);
        return made;
    };
    dtMeeting = picker("dtMeeting", u"Datum konání výstavy"_s);
    dtPrvniUzaverka = picker("dtPrvniUzaverka", u"Datum první uzávěrky"_s);
    dtDruhaUzaverka = picker("dtDruhaUzaverka", u"Datum druhé uzávěrky"_s);

    auto* column = new QVBoxLayout(frame);
    column->addLayout(form);
    column->addWidget(Note(u"Datum konání výstavy po nastavení nelze měnit, pokud je už na výstavu "
                           u"přihlášen přinejmenším jeden pes."_s,
                           frame));
    return frame;
}

QWidget* fm_Settings::MakeNumbersFrame() {
    auto* frame = new QGroupBox(u"Pořadová čísla psů"_s, this);
    cmdGenerateNumbers =
        Named(new QPushButton(u"Vygenerovat pořadová čísla"_s, frame), u"cmdGenerateNumbers"_s);
    cmdRemoveNumbers =
        Named(new QPushButton(u"Zrušit pořadová čísla"_s, frame), u"cmdRemoveNumbers"_s);
    auto* row = new QHBoxLayout(frame);
    row->addWidget(cmdGenerateNumbers);
    row->addWidget(cmdRemoveNumbers);
    return frame;
}

QWidget* fm_Settings::MakeDatabaseFrame() {
    auto* frame = new QGroupBox(u"Databáze"_s, this);
    cmdClearDatabase = Named(new QPushButton(u"Smazat data"_s, frame), u"cmdClearDatabase"_s);
    auto* row = new QHBoxLayout(frame);
    row->addWidget(Note(u"Smazáním obsahu databáze přijdete o všechna data. Po stisknutí tlačítka "
                        u"budete dotázáni, zda chcete skutečně data smazat."_s,
                        frame),
                   1);
    row->addWidget(cmdClearDatabase);
    return frame;
}

QWidget* fm_Settings::MakeWizardFrame() {
    auto* frame = new QGroupBox(u"Průvodce"_s, this);
    Command1 = Named(new QPushButton(u"Spustit průvodce"_s, frame), u"Command1"_s);
    auto* row = new QHBoxLayout(frame);
    row->addStretch();
    row->addWidget(Command1);
    return frame;
}

QWidget* fm_Settings::MakeLookPage() {
    auto* page = new QWidget(this);
    auto* frame = new QGroupBox(u"Volby"_s, page);
    auto* column = new QVBoxLayout(frame);
    const auto box = [&](const char* name, const QString& caption) {
        auto* made = Named(new QCheckBox(caption, frame), QString::fromLatin1(name));
        column->addWidget(made);
        return made;
    };
    chkGrids = box("chkGrids", u"Zobrazovat mřížky v seznamech"_s);
    chkRememberItem = box("chkRememberItem", u"Zapamatovat rozbalení hlavního stromečku"_s);
    chkShowClasses = box("chkShowClasses", u"Zobrazit ve stromečku třídy"_s);
    chkSourozenci = box("chkSourozenci", u"Po vybrání psa ve stromečku označit všechny psy "
                                         u"stejného majitele"_s);
    chkShowClasses->installEventFilter(new ShapeWatcher(this));

    auto* pageColumn = new QVBoxLayout(page);
    pageColumn->addWidget(frame);
    pageColumn->addStretch();
    return page;
}

} // namespace lorvo
