#include "User.h"
#include "desktop/QtPlatform.h"

#include <QPushButton>
#include <QTest>
#include <QThread>

#include <gmock/gmock.h>

namespace iceline::desktop {
namespace {

/// A run of the platform of the desktop, started by a click in a window.
class ProgressTest : public testing::Test {
protected:
    ProgressTest() {
        window.setObjectName(QStringLiteral("Window"));
        window.show();
        QApplication::processEvents();
        QObject::connect(&window, &QPushButton::clicked, [this] { ++clicks; });
    }

    /// Shows that an item is in hand, once runs show their progress.
    bool next(bool cancellable) {
        platform.showProgress({"Importing games", "game.gs0", 0, 2, cancellable});
        QThread::msleep(350);
        return platform.showProgress({"Importing games", "game.gs0", 0, 2, cancellable});
    }

    bool again(bool cancellable) {
        return platform.showProgress({"Importing games", "game.gs0", 1, 2, cancellable});
    }

    static void press(QWidget& window) {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, window.rect().center());
    }

    QPushButton window{QStringLiteral("Start")};
    QtPlatform platform;
    int clicks = 0;
};

TEST_F(ProgressTest, NothingElseAnswersDuringARun) {
    ASSERT_TRUE(next(false));
    QWidget* progress = shownWindow("Progress");
    ASSERT_NE(progress, nullptr);
    press(window);
    QTest::keyClick(progress->windowHandle(), Qt::Key_Escape);
    QTest::keyClick(progress->windowHandle(), Qt::Key_Return);
    EXPECT_FALSE(progress->close());
    EXPECT_TRUE(again(false));
    EXPECT_TRUE(progress->isVisible());
    EXPECT_EQ(clicks, 0);
    platform.endProgress();
    EXPECT_EQ(shownWindow("Progress"), nullptr);
    press(window);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ProgressTest, ItsOwnButtonStopsARun) {
    ASSERT_TRUE(next(true));
    QWidget* progress = shownWindow("Progress");
    QTest::keyClick(progress->windowHandle(), Qt::Key_Return);
    QTest::keyClick(progress->windowHandle(), Qt::Key_Escape);
    EXPECT_TRUE(again(true)) << "a key that came too late for a question";
    progress->findChild<QPushButton*>(QStringLiteral("Cancel"))->click();
    EXPECT_FALSE(again(true));
    platform.endProgress();
    EXPECT_TRUE(next(true)) << "the next run begins afresh";
}

TEST_F(ProgressTest, AQuestionWithinARunIsAnsweredWithReturn) {
    for (const bool shown : {false, true}) {
        if (shown)
            ASSERT_TRUE(next(true));
        else
            platform.showProgress({"Importing games", "game.gs0", 0, 2, true});
        QElapsedTimer asked;
        asked.start();
        User user([&] {
            if (asked.elapsed() > 500 && messageBox())
                QTest::keyClick(messageBox()->windowHandle(), Qt::Key_Return);
        });
        EXPECT_EQ(platform.ask({"Refused", Buttons::OkCancel}), Answer::Ok);
        EXPECT_TRUE(again(true));
        platform.endProgress();
    }
}

TEST_F(ProgressTest, TheEndOfTheSessionStopsTheRunInProgressAlone) {
    platform.stopRun();
    ASSERT_TRUE(next(false));
    platform.stopRun();
    EXPECT_FALSE(again(false));
    platform.endProgress();
    EXPECT_TRUE(next(false));
}

TEST_F(ProgressTest, AQuestionThatIsTakenAwayIsNotAgreedTo) {
    User user([] {
        if (messageBox())
            messageBox()->done(0);
    });
    EXPECT_EQ(platform.ask({"Sure?", Buttons::OkCancel}), Answer::Cancel);
    EXPECT_EQ(platform.ask({"Sure?", Buttons::YesNo}), Answer::No);
}

} // namespace
} // namespace iceline::desktop
