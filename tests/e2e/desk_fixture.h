#pragma once
// The whole program as it stands on a clerk's desk: real windows, menus, messages and documents.

#include "app/module_values.h"
#include "desktop/desktop_services.h"
#include "mainwindow/fm_main.h"
#include "platform/docx/docx_word_processor.h"
#include "platform/platform.h"
#include "support/clerk.h"
#include "support/recording_platform.h"
#include "support/temp_database.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

namespace lorvo::test {

class DeskTest : public ::testing::Test {
  protected:
    explicit DeskTest(DateValue today) {
        Module() = ModuleValues();
        recording.now = today;
        Platform& platform = ThePlatform();
        platform.messages = std::make_unique<DesktopMessageBoxes>();
        platform.menus = std::make_unique<DesktopPopupMenus>();
        platform.wordProcessors = std::make_unique<DocxWordProcessors>(
            *platform.opener, *platform.clock, platform.programFolder + QStringLiteral("/Tisky"));
    }
    ~DeskTest() override {
        window.reset();
        Module() = ModuleValues();
    }

    void Start() {
        window = std::make_unique<fm_main>();
        window->Start();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    /// What lies in front and has the keyboard.
    static QString InFront() {
        const QWidget* modal = QApplication::activeModalWidget();
        return modal ? modal->objectName() : QApplication::activeWindow()->objectName();
    }

    RecordingPlatform recording;
    TempDatabase database{TempDatabase::Content::Delivered};
    std::unique_ptr<fm_main> window;
};

} // namespace lorvo::test
