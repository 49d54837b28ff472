#include "User.h"
#include "desktop/Controls.h"
#include "desktop/Desktop.h"
#include "desktop/Guard.h"
#include "files/DiskFiles.h"
#include "files/FileError.h"
#include "files/Journal.h"
#include "files/JournalFormat.h"
#include "files/LeagueLock.h"
#include "samples/SaveStateWriter.h"
#include "support/TemporaryFolder.h"
#include "support/TestLeague.h"

#include <QLabel>
#include <QTest>

#include <gmock/gmock.h>

#include <csignal>
#include <fstream>
#include <new>

namespace iceline::desktop {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// The real start of the program on a league in a folder of the disk.
class Start : public testing::Test {
protected:
    int run() { return runLeague(folder.path()); }

    void makeLeague() { test::writeToDisk(test::TestLeague().files, folder.path()); }

    /// The program has ended: it shows nothing and the league is free.
    void expectNothingLeft() {
        for (QWidget* window : QApplication::topLevelWidgets())
            EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString();
        EXPECT_NO_THROW(LeagueLock(folder.path(), "test"));
    }

    test::TemporaryFolder folder;
};

TEST_F(Start, CancelAtTheQuestionEndsTheProgram) {
    Answers user({QMessageBox::Cancel});
    EXPECT_EQ(run(), 1);
    EXPECT_THAT(user.said, ElementsAre(HasSubstr("would you like the missing ones to be created?")));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "Boston Bruins"));
    expectNothingLeft();
}

TEST_F(Start, ADamagedFileEndsTheProgramWithOneMessage) {
    makeLeague();
    std::ofstream(folder.path() / "Games Until Playoffs.txt") << "many";
    Answers user({QMessageBox::Ok});
    EXPECT_EQ(run(), 1);
    EXPECT_THAT(user.said, ElementsAre(HasSubstr("Games Until Playoffs.txt, line 1")));
    expectNothingLeft();
}

TEST_F(Start, ALeagueInUseEndsTheProgramWithOneMessage) {
    makeLeague();
    const LeagueLock other(folder.path(), "the other program");
    Answers user({QMessageBox::Ok});
    EXPECT_EQ(run(), 1);
    EXPECT_THAT(user.said, ElementsAre(HasSubstr("in use by the other program")));
}

/// A league in which a change is unfinished that was worked out on another file.
class StartWithJournal : public Start {
protected:
    StartWithJournal() {
        makeLeague();
        DiskFiles files(folder.path());
        const Change change{Change::Kind::Write, paths::GamesUntilPlayoffs, 0, "30\r\n"};
        files.write(Journal::FileName,
                    std::string(JournalHeading) + journalEntry({change}, {{true, 4, checksum("50\r\n")}}),
                    Durability::Later);
    }

    bool isThere(const char* name) const { return std::filesystem::exists(folder.path() / name); }
};

TEST_F(StartWithJournal, AsksAndShowsTheLeagueMeanwhile) {
    Answers answers({QMessageBox::Ok, QMessageBox::Cancel, QMessageBox::Cancel, QMessageBox::Ok});
    User user([] {
        if (QWidget* splash = shownWindow("SplashScreen"))
            QTest::keyClick(splash, Qt::Key_Space);
        QWidget* main = shownWindow("WelcomeWindow");
        if (main && !messageBox()) {
            main->findChild<QAbstractButton*>(QStringLiteral("Command1"))->click();
            main->close();
        }
    });
    EXPECT_EQ(run(), 0);
    EXPECT_THAT(answers.said, ElementsAre(HasSubstr(paths::GamesUntilPlayoffs),
                                          HasSubstr("Set the unfinished"), HasSubstr("Make the unfinished"),
                                          HasSubstr("Look at the league"), HasSubstr("is only looked at")));
    EXPECT_TRUE(isThere(Journal::FileName));
    EXPECT_FALSE(isThere("IcelineWebPages/index.htm"));
}

TEST_F(StartWithJournal, EndsWhenTheUserWantsNothingAndGoesOnWithoutTheChange) {
    {
        Answers user({QMessageBox::Ok, QMessageBox::Cancel});
        EXPECT_EQ(run(), 1);
        EXPECT_TRUE(isThere(Journal::FileName));
    }
    Answers answers({QMessageBox::Ok});
    User user([] {
        if (shownWindow("SplashScreen"))
            std::raise(SIGTERM);
    });
    EXPECT_EQ(run(), 128 + SIGTERM);
    EXPECT_THAT(answers.said.back(), HasSubstr("is set aside in"));
    EXPECT_FALSE(isThere(Journal::FileName));
    expectNothingLeft();
}

TEST(Guard, ShowsWhateverIsThrown) {
    Answers user({QMessageBox::Ok});
    EXPECT_FALSE(guarded(nullptr, [] { throw std::bad_alloc(); }));
    EXPECT_FALSE(guarded(nullptr, [] { setText(NamedLabels(), "Wins", "3"); }));
    EXPECT_THAT(user.said,
                ElementsAre("there is not enough memory for this", "the window has no label 'Wins'"));
}

TEST_F(Start, ASignalEndsTheProgram) {
    makeLeague();
    User user([] {
        if (shownWindow("SplashScreen"))
            std::raise(SIGTERM);
    });
    EXPECT_EQ(run(), 128 + SIGTERM);
    expectNothingLeft();
}

TEST_F(Start, AKeyEndsTheSplashWindowAndAGameThatWasNamedIsShown) {
    makeLeague();
    const std::string game = (folder.path() / "game.gs0").generic_string();
    std::ofstream(game, std::ios::binary) << saveStateBytes(GameSheet(TeamIndex(0), TeamIndex(10)));
    bool splashOverMain = false;
    std::string shown;
    User user([&] {
        QWidget* splash = shownWindow("SplashScreen");
        QWidget* main = shownWindow("WelcomeWindow");
        if (splash)
            QTest::keyClick(splash, Qt::Key_Space);
        splashOverMain = splashOverMain || (main && splash);
        if (QWidget* window = shownWindow("StatExtractor")) {
            shown = window->findChild<QLabel*>(QStringLiteral("FileName"))->toolTip().toStdString();
            main->findChild<QAbstractButton*>(QStringLiteral("Command7"))->click();
        }
    });
    EXPECT_EQ(runLeague(folder.path(), game), 0);
    EXPECT_EQ(shown, game);
    EXPECT_FALSE(splashOverMain);
    expectNothingLeft();
}

} // namespace
} // namespace iceline::desktop
