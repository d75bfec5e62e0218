// Takes the pictures of the help and the README: the program's own windows with a show in them.
//   take_pictures DATA.MDB FOLDER
// The database is left as it was. The screen should have room for the windows as they are designed.

#include "app/module_values.h"
#include "app/start_up.h"
#include "desktop/real_platform.h"
#include "forms/application.h"
#include "forms/controls.h"
#include "mainwindow/fm_main.h"
#include "mainwindow/window_opener.h"
#include "platform/platform.h"
#include "platform/real_services.h"
#include "store/psi.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <iostream>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

using namespace lorvo;

constexpr QSize kMainWindow(1080, 760);

/// Lets windows be painted and what they have put off be done.
void Settle() {
    QEventLoop loop;
    QTimer::singleShot(100, &loop, &QEventLoop::quit);
    loop.exec();
}

/// As small as the format allows with every colour kept.
void Save(QWidget& window, const QString& path) {
    constexpr int kSmallest = 0;
    const QImage picture = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    if (!picture.save(path, "PNG", kSmallest))
        throw std::runtime_error("can't write " + path.toStdString());
    std::cout << path.toStdString() << '\n';
}

/// The dog whose card has most to show.
Psi WellFilledDog() {
    const std::vector<Psi> dogs = DogsByBreed();
    const auto richness = [](const Psi& dog) {
        return dog.Otec.size() + dog.Matka.size() + dog.Chovatel.size() + dog.Poznamka.size() +
               dog.ChovnaStanice.size();
    };
    return *std::ranges::max_element(dogs, {}, richness);
}

class Pictures {
  public:
    explicit Pictures(const QString& folder) : folder_(folder) {}

    void Take() {
        window_.resize(kMainWindow);
        window_.Start();
        const Psi dog = WellFilledDog();
        Show(u"P%1"_s.arg(dog.ID), u"karta"_s);
        for (const char* name :
             {"fm_Dog", "frmPlatba", "frmUhrady", "fm_Settings", "fm_Plemena", "fm_DogsList",
              "frmVystavovatele", "frmTiskKatalog", "frmTiskPozvanek", "fm_Souteze"})
            TakeWindow(QString::fromLatin1(name), dog);
        TakeOwner();
        Show(u"R%1"_s.arg(dog.PlemenoID), u"okno"_s);
    }

  private:
    QString PathOf(const QString& name) const { return folder_ + u'/' + name + u".png"_s; }

    void Show(const QString& node, const QString& name) {
        window_.SelectNode(node);
        window_.ShowNodeInfo(node);
        Settle();
        Save(window_, PathOf(name));
    }
    void TakeOwner() {
        for (LinkLabel* link : window_.findChildren<LinkLabel*>())
            if (link->isVisible() && link->accessibleName() == u"Jméno:")
                Q_EMIT link->Clicked(Qt::LeftButton);
        Settle();
        Save(window_, PathOf(u"majitel"_s));
    }
    void TakeWindow(const QString& name, const Psi& dog) {
        QTimer::singleShot(0, &window_, [this, name] {
            Settle();
            QWidget* open = QApplication::activeModalWidget();
            Save(*open, PathOf(name));
            open->close();
        });
        Open(name, name == u"fm_Dog" ? WindowInput(DogTask{false, dog.PlemenoID}) : WindowInput());
    }

    QString folder_;
    fm_main window_;
};

void Run(const QString& database, const QString& folder) {
    const QTemporaryDir desk;
    if (!QFile::copy(database, desk.filePath(u"data.mdb"_s)) || !QDir().mkpath(folder))
        throw std::runtime_error("can't copy " + database.toStdString());
    ThePlatform().programFolder = desk.path();
    ThePlatform().settings = MakeSettingsTree(desk.path());
    OpenDatabase();
    Pictures(folder).Take();
}

} // namespace

int main(int argc, char** argv) try {
    const Application application(argc, argv);
    if (argc != 3)
        throw std::runtime_error("usage: take_pictures DATA.MDB FOLDER");
    SpeakCzech();
    InstallRealPlatform();
    Run(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
    return 0;
} catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
}
