#pragma once
// The whole main window on a recording platform and a database of the test's own.

#include "app/module_values.h"
#include "app/view_preferences.h"
#include "forms/form.h"
#include "mainwindow/fm_main.h"
#include "mainwindow/main_tree.h"
#include "mainwindow/window_opener.h"
#include "support/print_qt.h"
#include "support/recording_platform.h"
#include "support/temp_database.h"

#include <QApplication>
#include <QLabel>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace lorvo {

/// A window that does what the test says and closes.
class PassingForm : public Form {
  public:
    PassingForm(const QString& name, std::function<void()> deed, QWidget* parent)
        : Form(name.toLatin1().constData(), name, Border::Sizable, parent), deed_(std::move(deed)) {
    }

  protected:
    void Load() override {
        if (deed_)
            deed_();
        reject();
    }

  private:
    std::function<void()> deed_;
};

/// Puts a PassingForm under a window's name for the lifetime of the object.
class StandIn {
  public:
    StandIn(const QString& name, const std::function<void()>& deed) : name_(name) {
        before_ = SetWindow(name, [name, deed](const WindowInput&, QWidget* parent) {
            return std::make_unique<PassingForm>(name, deed, parent);
        });
    }
    ~StandIn() { SetWindow(name_, std::move(before_)); }
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;

  private:
    QString name_;
    WindowFactory before_;
};

class MainWindowTest : public ::testing::Test {
  protected:
    void TearDown() override {
        window_.reset();
        Module() = {};
    }

    void Start() {
        window_ = std::make_unique<fm_main>();
        window_->Start();
        QCoreApplication::processEvents();
    }
    void Close() {
        window_->close();
        window_.reset();
    }

    /// Ring 1 with the breeds 10 and 11; breed 10 with the dogs 100 and 101.
    void AddSmallShow() {
        database_.Execute("INSERT INTO Kruhy (ID, Nazev) VALUES (1, 'Kruh A')");
        AddBreed(10, "Pudl", 1);
        AddBreed(11, "Vipet", 1);
        AddDog(100, "Alík", 10);
        AddDog(101, "Brok", 10);
    }
    void AddBreed(int id, const std::string& name, int ring) {
        database_.Execute(
            "INSERT INTO Plemena (ID, Nazev, NazevOrig, Pouzivat, ID_Kruhu) VALUES (" +
            std::to_string(id) + ", '" + name + "', '', -1, " + std::to_string(ring) + ")");
    }
    void AddDog(int id, const std::string& name, int breed, int trida = 5) {
        database_.Execute("INSERT INTO Psi (ID, Jmeno, PlemenoID, Trida, PohlaviPes) VALUES (" +
                          std::to_string(id) + ", '" + name + "', " + std::to_string(breed) + ", " +
                          std::to_string(trida) + ", -1)");
    }
    void RenameBreed(int id, const std::string& name) {
        database_.Execute("UPDATE Plemena SET Nazev = '" + name +
                          "' WHERE ID = " + std::to_string(id));
    }

    template<typename T> T& Control(const QString& name) {
        T* control = window_->findChild<T*>(name);
        if (!control)
            throw std::runtime_error("no control " + name.toStdString());
        return *control;
    }
    MainTree& Tree() { return Control<MainTree>(QStringLiteral("tvwMain")); }
    QString Title() { return Control<QLabel>(QStringLiteral("lblItemTitle")).text(); }
    QString Status(int panel) {
        return Control<QLabel>(QStringLiteral("sbMain(%1)").arg(panel)).text();
    }
    QString& Setting(const QString& path) { return platform_.settings[path]; }

    test::RecordingPlatform platform_;
    TempDatabase database_;
    std::unique_ptr<fm_main> window_;
};

} // namespace lorvo
