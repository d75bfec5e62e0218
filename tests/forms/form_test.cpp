#include "forms/form.h"

#include "forms/application.h"
#include "forms/controls.h"
#include "platform/failure_guard.h"
#include "platform/values/errors.h"
#include "support/modal_driver.h"
#include "support/recording_platform.h"

#include <QTest>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

using test::WhileOpen;

class StepsForm : public Form {
  public:
    explicit StepsForm(QStringList& steps, const char* name = "fm_Steps")
        : Form(name, u"Kroky"_s, Border::Sizable, nullptr), steps_(steps) {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(Named(new QPushButton(u"OK"_s, this), u"cmdOK"_s));
        connect(findChild<QPushButton*>(), &QPushButton::clicked, this, &QDialog::accept);
    }

    void Activated() override { steps_ << objectName() + u" activated"_s; }
    void Load() override {
        steps_ << objectName() + u" load"_s;
        if (onLoad)
            onLoad();
    }
    bool QueryUnload() override {
        steps_ << objectName() + u" unload"_s;
        return mayClose;
    }

    std::function<void()> onLoad;
    bool mayClose = true;

  private:
    QStringList& steps_;
};

class MainStandIn : public Activatable {
  public:
    explicit MainStandIn(QStringList& steps) : steps_(steps) { SetActivatedBelow(this); }
    ~MainStandIn() override { SetActivatedBelow(nullptr); }
    void Activate() override { steps_ << u"main activated"_s; }

  private:
    QStringList& steps_;
};

class FormTest : public ::testing::Test {
  protected:
    test::RecordingPlatform platform;
    QStringList steps;
    MainStandIn mainWindow{steps};
    const QStringList oneRun = {u"fm_Steps load"_s, u"fm_Steps activated"_s, u"fm_Steps unload"_s,
                                u"main activated"_s};
};

TEST_F(FormTest, LoadsOnceAndTellsTheMainWindowOnceWhenAButtonClosesIt) {
    StepsForm form(steps);
    WhileOpen([&] { OpenModal(form); },
              [](QWidget& window) { window.findChild<QPushButton*>()->click(); });
    EXPECT_EQ(steps, oneRun);
    EXPECT_FALSE(IsModalOpen());
}

TEST_F(FormTest, TheCloseBoxIsARoadLikeAnyOther) {
    StepsForm form(steps);
    WhileOpen([&] { OpenModal(form); }, [](QWidget& window) { window.close(); });
    EXPECT_EQ(steps, oneRun);
}

TEST_F(FormTest, EscIsARoadLikeAnyOther) {
    StepsForm form(steps);
    WhileOpen([&] { OpenModal(form); },
              [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    EXPECT_EQ(steps, oneRun);
}

TEST_F(FormTest, StaysOpenWhileItMayNotClose) {
    StepsForm form(steps);
    form.mayClose = false;
    WhileOpen([&] { OpenModal(form); },
              [&](QWidget& window) {
                  window.close();
                  EXPECT_TRUE(window.isVisible());
                  EXPECT_TRUE(platform.settings.empty());
                  form.mayClose = true;
              });
    EXPECT_FALSE(platform.settings.empty());
}

TEST_F(FormTest, TheWindowBelowIsToldAndNotTheMainWindow) {
    StepsForm below(steps);
    StepsForm above(steps, "fm_Above");
    WhileOpen([&] { OpenModal(below); },
              [&](QWidget&) {
                  steps.clear();
                  WhileOpen([&] { OpenModal(above); }, [](QWidget& window) { window.close(); });
                  EXPECT_EQ(steps.mid(3), QStringList(u"fm_Steps activated"_s));
                  EXPECT_TRUE(IsModalOpen());
              });
    EXPECT_EQ(steps.last(), u"main activated"_s);
}

TEST_F(FormTest, AFailureWhileLoadingLeavesNoWindowOpen) {
    StepsForm form(steps);
    form.onLoad = [] {
        throw StoreError("broken");
    };
    EXPECT_THROW(OpenModal(form), StoreError);
    EXPECT_FALSE(IsModalOpen());
    EXPECT_EQ(steps, QStringList(u"fm_Steps load"_s));
}

TEST_F(FormTest, AFailureInAHandlerGoesUpThroughEveryOpenWindow) {
    StepsForm below(steps);
    StepsForm above(steps, "fm_Above");
    above.disconnect(above.findChild<QPushButton*>());
    Connect(above.findChild<QPushButton*>(), &QPushButton::clicked, &above,
            [] { throw StoreError("broken"); });
    below.onLoad = [&] {
        QMetaObject::invokeMethod(
            &below, [&] { OpenModal(above); }, Qt::QueuedConnection);
        QMetaObject::invokeMethod(
            &above, [&] { QTest::mouseClick(above.findChild<QPushButton*>(), Qt::LeftButton); },
            Qt::QueuedConnection);
    };
    platform.ExpectMessage(u"broken"_s);
    EXPECT_EQ(static_cast<Application*>(qApp)->Run([&] { OpenModal(below); }), 1);
    EXPECT_FALSE(IsModalOpen());
    EXPECT_FALSE(below.isVisible());
    EXPECT_FALSE(above.isVisible());
    EXPECT_FALSE(steps.contains(u"main activated"_s));
}

TEST_F(FormTest, AWindowMayBeOpenedAgain) {
    StepsForm form(steps);
    WhileOpen([&] { OpenModal(form); }, [](QWidget& window) { window.close(); });
    WhileOpen([&] { OpenModal(form); }, [](QWidget& window) { window.close(); });
    EXPECT_EQ(steps, oneRun + oneRun);
}

TEST_F(FormTest, LongTextsShowTheirBeginning) {
    StepsForm form(steps);
    auto* first = new QLineEdit(&form);
    auto* second = new QLineEdit(&form);
    for (QLineEdit* box : {first, second}) {
        form.layout()->addWidget(box);
        box->setText(u"bohuslava.nepomucka-krkoskovicova@chovatelskastanice.example"_s);
    }
    first->setFocus();
    WhileOpen([&form] { OpenModal(form); },
              [&](QWidget&) {
                  EXPECT_TRUE(QTest::qWaitFor([&] { return second->cursorPosition() == 0; }));
                  EXPECT_EQ(first->cursorPosition(), first->text().size());
              });
}

} // namespace
} // namespace lorvo
