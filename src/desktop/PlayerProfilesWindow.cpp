#include "desktop/PlayerProfilesWindow.h"

#include "desktop/Controls.h"
#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>

#include <vector>

namespace iceline::desktop {

namespace {

constexpr int PortraitSize = 200;

struct FigureCell {
    const char* head;
    const char* control;
};

const std::vector<FigureCell> SkaterTotals{{"GP", "PlyrGP"},    {"G", "PlyrG"},     {"A", "PlyrA"},
                                           {"Pts.", "PlyrPts"}, {"SOG", "PlyrSOG"}, {"S%", "PlyrSPct"},
                                           {"PIM", "PlyrPIM"},  {"PP", "PlyrPP"},   {"SH", "PlyrSH"}};
const std::vector<FigureCell> SkaterAverages{{"Pow. Rnkg", "PlyrPowRanking"},
                                             {"GPG", "PlyrGPG"},
                                             {"APG", "PlyrAPG"},
                                             {"PPG", "PlyrPPG"},
                                             {"SPG", "PlyrSOGPG"},
                                             {"PIMG", "PlyrPIMPG"},
                                             {"3 Star Pts.", "Plyr3Star"}};
const std::vector<FigureCell> GoalieFigures{{"Pow.Rnkg", "GoaliePowRanking"},
                                            {"GP", "GoalieGP"},
                                            {"W", "GoalieW"},
                                            {"L", "GoalieL"},
                                            {"T", "GoalieT"},
                                            {"GAA", "GoalieGAA"},
                                            {"Save%", "GoalieSavePct"},
                                            {"SHO", "GoalieShutouts"},
                                            {"SF", "ShotsFaced"},
                                            {"GA", "GoalsAgainst"},
                                            {"A", "GoalieA"},
                                            {"3 Star Pts.", "Goalie3Star"}};

void addFigures(QGroupBox* box, QGridLayout* grid, int row, const std::vector<FigureCell>& cells) {
    int column = 0;
    for (const FigureCell& cell : cells) {
        grid->addWidget(headLabel(QLatin1String(cell.head), box, Qt::AlignCenter), row, column);
        QLabel* figure = figureLabel(QLatin1String(cell.control), box);
        figure->setAlignment(Qt::AlignCenter);
        grid->addWidget(figure, row + 1, column);
        grid->setColumnMinimumWidth(column++, 64);
    }
}

QLabel* addFact(QGridLayout* grid, QWidget* parent, const QString& caption, const char* control) {
    const int row = grid->rowCount();
    grid->addWidget(headLabel(caption, parent, Qt::AlignLeft), row, 0);
    QLabel* fact = textLabel(QLatin1String(control), parent);
    grid->addWidget(fact, row, 1);
    return fact;
}

} // namespace

PlayerProfilesWindow::PlayerProfilesWindow(Application& application, WindowId id, PlayerProfiles& object)
    : LeagueWindow(application, id), object_(object) {
    auto* outer = new QVBoxLayout(this);
    QGroupBox* box = frame("Frame8", QStringLiteral("Player Profiles"), this);
    outer->addWidget(box);
    auto* rows = new QVBoxLayout(box);
    rows->addLayout(makeChoices());
    rows->addLayout(makeTeam());
    rows->addLayout(makePlayer());
    skaterFrame_ = frame("RegularFrame", QStringLiteral("Skater"), this);
    auto* skater = new QGridLayout(skaterFrame_);
    addFigures(skaterFrame_, skater, 0, SkaterTotals);
    addFigures(skaterFrame_, skater, 2, SkaterAverages);
    rows->addWidget(skaterFrame_);
    goalieFrame_ = frame("GoalieFrame", QStringLiteral("Goalie"), this);
    addFigures(goalieFrame_, new QGridLayout(goalieFrame_), 0, GoalieFigures);
    rows->addWidget(goalieFrame_);
    goalieFrame_->hide();
    rows->addStretch();
    follow(object_);
}

QLayout* PlayerProfilesWindow::makeChoices() {
    auto* row = new QHBoxLayout;
    if (id() == WindowId::PlayerProfiles) {
        QLabel* title = textLabel(QStringLiteral("Text6"), this);
        title->setText(QStringLiteral("PLAYER PROFILES"));
        title->setProperty("role", QStringLiteral("title"));
        row->addWidget(title);
    }
    teams_ = teamList("PlayersTeamSelect", QStringLiteral("Select Team Here"), this);
    connect(teams_, &QComboBox::activated, this, [this](int index) {
        run([this, index] {
            object_.PlayersTeamSelect = index;
            object_.PlayersTeamSelect_Click();
        });
    });
    row->addWidget(teams_);
    players_ = new QComboBox(this);
    players_->setObjectName(QStringLiteral("PlayersNameSelect"));
    players_->setPlaceholderText(QStringLiteral("Select Player Here"));
    players_->setMinimumWidth(210);
    connect(players_, &QComboBox::activated, this, [this](int index) {
        run([this, index] {
            object_.PlayersNameSelect = index;
            object_.PlayersNameSelect_Click();
        });
    });
    row->addWidget(players_);
    row->addStretch();
    row->addWidget(exitButton("Command2", this));
    return row;
}

QLayout* PlayerProfilesWindow::makeTeam() {
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (const char* name : {"PlayersTeamLogo", "PlayersTeamName", "PlayersTeamLogo2"})
        row->addWidget(pictureLabel(QLatin1String(name), this));
    row->addStretch();
    return row;
}

QLayout* PlayerProfilesWindow::makePlayer() {
    auto* row = new QHBoxLayout;
    portrait_ = pictureLabel(QStringLiteral("PlayerPortrait"), this);
    portrait_->setFixedSize(PortraitSize, PortraitSize);
    row->addWidget(portrait_);
    auto* facts = new QGridLayout;
    QLabel* name = textLabel(QStringLiteral("PlyrName"), this);
    name->setProperty("role", QStringLiteral("title"));
    facts->addWidget(name, 0, 0, 1, 2);
    addFact(facts, this, QStringLiteral("#"), "PlyrNum");
    addFact(facts, this, QStringLiteral("Position"), "Label1");
    addFact(facts, this, QStringLiteral("Overall Rating"), "PlyrOverall");
    facts->setColumnStretch(1, 1);
    facts->setRowStretch(facts->rowCount(), 1);
    row->addLayout(facts, 1);
    return row;
}

void PlayerProfilesWindow::refresh() {
    const PlayerProfiles::Content& content = object_.content();
    const TeamIndex team(object_.PlayersTeamSelect);
    teams_->setCurrentIndex(team.number());
    if (team.number() != PlayerProfiles::NotChosen) {
        findChild<QLabel*>(QStringLiteral("PlayersTeamName"))->setPixmap(pictures::teamNameBig(team));
        for (const char* logo : {"PlayersTeamLogo", "PlayersTeamLogo2"})
            findChild<QLabel*>(QLatin1String(logo))->setPixmap(pictures::teamLogo(team));
    }
    players_->clear();
    for (const RosterRow& row : content.roster)
        players_->addItem(toQt(row.Name));
    players_->setCurrentIndex(object_.PlayersNameSelect);
    if (content.player)
        showPlayer(*content.player);
}

void PlayerProfilesWindow::showPlayer(const PlayerProfiles::Player& player) {
    setText(this, "PlyrName", player.row.Name);
    setText(this, "PlyrNum", std::to_string(player.row.Number));
    setText(this, "PlyrOverall", std::to_string(player.row.Rating));
    setText(this, "Label1", player.row.Position);
    portrait_->setPixmap(portrait(player));
    for (const PlayerProfiles::Figure& figure : player.figures)
        findChild<QLabel*>(toQt(figure.name))->setText(toQt(figure.text));
    goalieFrame_->setVisible(player.row.isGoalie());
    skaterFrame_->setVisible(!player.row.isGoalie());
}

QPixmap PlayerProfilesWindow::portrait(const PlayerProfiles::Player& player) {
    QPixmap picture;
    if (app_.files().isFile(player.card)) {
        const std::string bytes = app_.files().read(player.card);
        picture.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<uint>(bytes.size()));
    }
    if (picture.isNull())
        return picture;
    return picture.scaled(PortraitSize, PortraitSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace iceline::desktop
