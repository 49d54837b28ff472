#include "desktop/PlayerProfilesWindow.h"

#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>

namespace iceline::desktop {

namespace {

constexpr int PortraitSize = 200;

} // namespace

PlayerProfilesWindow::PlayerProfilesWindow(Application& application, WindowId id, PlayerProfiles& object)
    : LeagueWindow(application, id), object_(object) {
    auto* outer = new QVBoxLayout(page());
    QGroupBox* box = frame("Frame8", QStringLiteral("Player Profiles"), this);
    outer->addWidget(box);
    auto* rows = new QVBoxLayout(box);
    rows->addLayout(makeChoices());
    rows->addLayout(makeTeam());
    rows->addLayout(makePlayer());
    skaterFrame_ = makeFigures("RegularFrame", QStringLiteral("Skater"), SkaterProfileLines);
    rows->addWidget(skaterFrame_);
    goalieFrame_ = makeFigures("GoalieFrame", QStringLiteral("Goalie"), GoalieProfileLines);
    rows->addWidget(goalieFrame_);
    goalieFrame_->hide();
    rows->addStretch();
    follow(object_);
}

template <class Stats, std::size_t Lines>
QGroupBox* PlayerProfilesWindow::makeFigures(const char* name, const QString& caption,
                                             const std::array<ProfileLine<Stats>, Lines>& lines) {
    QGroupBox* box = frame(name, caption, this);
    auto* rows = new QVBoxLayout(box);
    for (const ProfileLine<Stats>& line : lines)
        rows->addLayout(makeLine(line, box));
    return box;
}

/// The heads are one label; each figure begins where its head does.
template <class Stats>
QLayout* PlayerProfilesWindow::makeLine(const ProfileLine<Stats>& line, QWidget* parent) {
    auto* rows = new QVBoxLayout;
    QLabel* heads = headLabel(toQt(line.heads), parent, Qt::AlignLeft);
    heads->setObjectName(toQt(line.headsControl));
    heads->ensurePolished();
    rows->addWidget(heads);
    auto* figures = new QGridLayout;
    figures->setHorizontalSpacing(0);
    rows->addLayout(figures);
    const auto left = [heads](std::string_view text) {
        return heads->fontMetrics().horizontalAdvance(toQt(text));
    };
    auto figure = line.figures.begin();
    int column = 0;
    forEachHead(line.heads, [&](std::size_t begin, std::string_view head) {
        auto* cell = new QHBoxLayout;
        cell->setSpacing(4);
        do {
            if (!figure->dash.empty()) {
                QLabel* dash = headLabel(QStringLiteral("-"), parent);
                dash->setObjectName(toQt(figure->dash));
                cell->addWidget(dash);
            }
            cell->addWidget(figures_.add(figureLabel(toQt(figure->control), parent)));
            ++figure;
        } while (figure != line.figures.end() && !figure->dash.empty());
        cell->addStretch();
        const std::size_t next = line.heads.find_first_not_of(' ', begin + head.size());
        figures->addLayout(cell, 0, column);
        figures->setColumnMinimumWidth(column++,
                                       left(line.heads.substr(0, next)) - left(line.heads.substr(0, begin)));
    });
    figures->setColumnStretch(column, 1);
    return rows;
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
    players_ = choiceList("PlayersNameSelect", QStringLiteral("Select Player Here"), this);
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
    logo_ = pictureLabel(QStringLiteral("PlayersTeamLogo"), this);
    name_ = pictureLabel(QStringLiteral("PlayersTeamName"), this);
    logo2_ = pictureLabel(QStringLiteral("PlayersTeamLogo2"), this);
    for (QLabel* picture : {logo_, name_, logo2_})
        row->addWidget(picture);
    row->addStretch();
    return row;
}

QLayout* PlayerProfilesWindow::makePlayer() {
    auto* row = new QHBoxLayout;
    portrait_ = pictureLabel(QStringLiteral("PlayerPortrait"), this);
    portrait_->setFixedSize(PortraitSize, PortraitSize);
    row->addWidget(portrait_);
    auto* facts = new QGridLayout;
    playerName_ = textLabel(QStringLiteral("PlyrName"), this);
    playerName_->setProperty("role", QStringLiteral("title"));
    facts->addWidget(playerName_, 0, 0, 1, 2);
    number_ = addFact(facts, "", QStringLiteral("#"), "PlyrNum");
    position_ = addFact(facts, "Text2", QStringLiteral("Position"), "Label1");
    overall_ = addFact(facts, "Text1", QStringLiteral("Overall Rating"), "PlyrOverall");
    facts->setColumnStretch(1, 1);
    facts->setRowStretch(facts->rowCount(), 1);
    row->addLayout(facts, 1);
    return row;
}

QLabel* PlayerProfilesWindow::addFact(QGridLayout* grid, const char* captionName, const QString& caption,
                                      const char* control) {
    const int row = grid->rowCount();
    QLabel* head = headLabel(caption, this, Qt::AlignLeft);
    head->setObjectName(QLatin1String(captionName));
    grid->addWidget(head, row, 0);
    QLabel* fact = textLabel(QLatin1String(control), this);
    grid->addWidget(fact, row, 1);
    return fact;
}

void PlayerProfilesWindow::refresh() {
    const PlayerProfiles::Content& content = object_.content();
    teams_->setCurrentIndex(object_.PlayersTeamSelect);
    if (object_.PlayersTeamSelect != PlayerProfiles::NotChosen) {
        const TeamIndex team(object_.PlayersTeamSelect);
        name_->setPixmap(pictures::teamNameBig(team));
        logo_->setPixmap(pictures::teamLogo(team));
        logo2_->setPixmap(pictures::teamLogo(team));
    }
    players_->clear();
    for (const RosterRow& row : content.roster)
        players_->addItem(toQt(row.Name));
    players_->setCurrentIndex(object_.PlayersNameSelect);
    if (content.player)
        showPlayer(*content.player);
}

void PlayerProfilesWindow::showPlayer(const PlayerProfiles::Player& player) {
    playerName_->setText(toQt(player.row.Name));
    number_->setText(QString::number(player.row.Number));
    overall_->setText(QString::number(player.row.Rating));
    position_->setText(toQt(player.row.Position));
    portrait_->setPixmap(portrait(player));
    for (const PlayerProfiles::Figure& figure : player.figures)
        setText(figures_, figure.name, figure.text);
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
