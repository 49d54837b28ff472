#include "desktop/WelcomeWindow.h"

#include "DesktopTest.h"
#include "User.h"
#include "samples/SaveStateWriter.h"
#include "support/TemporaryFolder.h"

#include <QDesktopServices>
#include <QTest>

namespace iceline::desktop {
namespace {

/// Takes what the program wants a browser to show, as a browser would.
class Browser : public QObject {
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "visit"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("http")); }

    std::vector<QUrl> visited;

public Q_SLOTS:
    void visit(const QUrl& address) { visited.push_back(address); }
};

class WelcomeWindowTest : public DesktopTest {
protected:
    test::TemporaryFolder site;
    PreviewServer preview{site.path()};
    WelcomeWindow window{league.app, preview};
};

TEST_F(WelcomeWindowTest, GeneratesTheWebpages) {
    click(window, "Command1");
    EXPECT_THAT(league.said(), testing::ElementsAre("All Webpages have been generated and are located in the "
                                                    "IcelineWebpages directory."));
    EXPECT_TRUE(league.files.isFile("IcelineWebPages/index.htm"));
}

TEST_F(WelcomeWindowTest, IsWorkedByKeysFromAnyWindow) {
    const auto inFront = [](const char* name) -> QWidget& {
        QWidget* shown = shownWindow(name);
        if (!shown || !QTest::qWaitForWindowActive(shown))
            throw std::logic_error(std::string("not in front: ") + name);
        return *shown;
    };
    window.show();
    QTest::keyClick(&inFront("WelcomeWindow"), Qt::Key_3, Qt::ControlModifier);
    QWidget& team = inFront("TeamStats");
    choose(team, "TeamSelect", 0);
    TeamRecord record;
    record.Wins = 7;
    league.setRecord(TeamIndex(0), PartOfYear::Season, record);
    QTest::keyClick(&team, Qt::Key_F5);
    EXPECT_EQ(text(team, "Wins"), "7");
    league.files.files["game.gs0"] = saveStateBytes(GameSheet(TeamIndex(0), TeamIndex(10)));
    league.platform.chosen.push_back("game.gs0");
    QTest::keyClick(&team, Qt::Key_O, Qt::ControlModifier);
    QWidget& game = inFront("StatExtractor");
    EXPECT_EQ(text(game, "FileName"), "game.gs0");
    QTest::keyClick(&game, Qt::Key_Escape);
    EXPECT_FALSE(league.app.windows().isLoaded(WindowId::StatExtractor));
}

TEST_F(WelcomeWindowTest, ShowsTheSiteInABrowser) {
    Browser browser;
    click(window, "PreviewSite");
    click(window, "PreviewSite");
    ASSERT_EQ(browser.visited.size(), 2U);
    EXPECT_EQ(browser.visited[0].host(), QStringLiteral("127.0.0.1"));
    EXPECT_EQ(browser.visited[1], browser.visited[0]) << "the preview goes on at its place";
    EXPECT_THROW(SitePreview(site.path(), static_cast<unsigned short>(browser.visited[0].port())),
                 PreviewError)
        << "nobody listens there";
}

} // namespace
} // namespace iceline::desktop

#include "WelcomeWindowTest.moc"
