#include "desktop/BracketPanel.h"

#include "desktop/Controls.h"
#include "desktop/Pictures.h"
#include "desktop/QtPlatform.h"
#include "desktop/SeriesBox.h"

#include <QGridLayout>
#include <QPainter>
#include <QPainterPath>

namespace iceline::desktop {

namespace {

/// Lines of the grid: the headings, then eight for the first round, two for each of its series.
constexpr int FirstLine = 1;
constexpr int RoundLines = 8;

/// Columns of the grid: three rounds from each side, a gap after each, and the middle.
constexpr int MiddleColumn = 6;
constexpr int LastColumn = 12;
constexpr int GapWidth = 20;
constexpr int LineHeight = 70;

/// Colours of the lines; a winner's line has the highlight's.
constexpr QColor OpenColor(0xb9, 0xc6, 0xd3);
constexpr QColor ChampionColor(0xd9, 0xa4, 0x00);

constexpr std::array<std::array<const char*, 2>, 4> EastSeeds{
    {{"Text1", "Text2"}, {"Text3", "Text4"}, {"Text5", "Text6"}, {"Text7", "Text8"}}};
constexpr std::array<std::array<const char*, 2>, 4> WestSeeds{
    {{"Text9", "Text10"}, {"Text11", "Text12"}, {"Text13", "Text14"}, {"Text15", "Text16"}}};

int columnOf(Conference conference, int round) {
    return conference == Conference::Wales ? 2 * round : LastColumn - 2 * round;
}

bool isEast(Conference conference) {
    return conference == Conference::Wales;
}

constexpr std::array Teams{SeriesTeam::A, SeriesTeam::B};

/// The seeds of a first-round series, and 0 in any other.
std::array<int, 2> seedsOf(Conference conference, SeriesIndex series) {
    std::array<int, 2> seeds{};
    for (const BracketSlot& slot : bracketSlots(conference))
        if (slot.place.series == series)
            seeds[static_cast<std::size_t>(slot.place.team)] = slot.seed;
    return seeds;
}

SeriesBox::Names namesOf(SeriesIndex series, const std::array<int, 2>& seeds, Conference conference) {
    const int number = series.number();
    SeriesBox::Names names{
        {}, {element("W1", number), element("W2", number)}, QStringLiteral("Label%1").arg(number + 1), {}};
    if (number >= FirstRoundSeries) {
        names.banners = {element("T1", number - FirstRoundSeries), element("T2", number - FirstRoundSeries)};
        return names;
    }
    const auto& seedLabels = (isEast(conference) ? EastSeeds : WestSeeds)[series % 4];
    for (std::size_t team = 0; team < Teams.size(); ++team) {
        names.banners[team] =
            element(isEast(conference) ? "EastFirstRound" : "WestFirstRound", seeds[team] - 1);
        names.seeds[team] = QLatin1String(seedLabels[team]);
    }
    return names;
}

/// From the inner edge of a series to the row of its winner in the next.
QPainterPath lineBetween(const SeriesBox& from, const SeriesBox& to, SeriesTeam place) {
    const bool rightwards = from.x() < to.x();
    const int start = rightwards ? from.geometry().right() + 1 : from.x();
    const int end = rightwards ? to.x() : to.geometry().right() + 1;
    const int bend = start + (rightwards ? GapWidth : -GapWidth) / 2;
    QPainterPath path(QPointF(start, from.geometry().center().y()));
    path.lineTo(bend, from.geometry().center().y());
    path.lineTo(bend, to.middleOf(place));
    path.lineTo(end, to.middleOf(place));
    return path;
}

} // namespace

BracketPanel::BracketPanel(QWidget* parent) : QWidget(parent), grid_(new QGridLayout(this)) {
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setSpacing(0);
    for (int column = 1; column < LastColumn; column += 2)
        grid_->setColumnMinimumWidth(column, GapWidth);
    for (int line = FirstLine; line < FirstLine + RoundLines; ++line) {
        grid_->setRowMinimumHeight(line, LineHeight);
        grid_->setRowStretch(line, 1);
    }
    for (const Conference conference : {Conference::Wales, Conference::Campbell}) {
        addHeading(conference);
        addConference(conference);
    }
    addMiddle();
}

void BracketPanel::addHeading(Conference conference) {
    QLabel* heading = headLabel(isEast(conference) ? QStringLiteral("EASTERN CONFERENCE")
                                                   : QStringLiteral("WESTERN CONFERENCE"),
                                this, Qt::AlignCenter);
    heading->setObjectName(isEast(conference) ? QStringLiteral("Text23") : QStringLiteral("Text24"));
    grid_->addWidget(heading, 0, isEast(conference) ? 0 : MiddleColumn + 2, 1, 5);
}

void BracketPanel::addConference(Conference conference) {
    for (int round = 0; round < BracketRounds - 1; ++round) {
        SeriesIndex series = firstSeriesOf(conference, round);
        for (int i = 0; i < 4 >> round; ++i, ++series)
            addSeries(series, conference, round, i);
    }
}

void BracketPanel::addSeries(SeriesIndex series, Conference conference, int round, int index) {
    const auto seeds = seedsOf(conference, series);
    auto* box = new SeriesBox(namesOf(series, seeds, conference), this);
    if (round == 0)
        box->setSeeds({QString::number(seeds[0]), QString::number(seeds[1])});
    const int lines = 2 << round;
    grid_->addWidget(box, FirstLine + index * lines, columnOf(conference, round), lines, 1, Qt::AlignCenter);
    series_[series] = box;
}

void BracketPanel::addMiddle() {
    auto* top = new QVBoxLayout;
    QLabel* picture = pictureLabel(QStringLiteral("Picture2"), this);
    picture->setPixmap(pictures::atMost(100, pictures::named("league-logo")));
    top->addWidget(picture);
    top->addStretch();
    top->addWidget(headLabel(QStringLiteral("Stanley Cup Champions"), this, Qt::AlignCenter));
    champion_ = pictureLabel(QStringLiteral("StanleyCup"), this);
    champion_->setFixedHeight(40);
    top->addWidget(champion_);
    top->addStretch();
    grid_->addLayout(top, FirstLine, MiddleColumn, 3, 1);
    auto* box = new SeriesBox(namesOf(FinalSeries, {}, Conference::Wales), this);
    grid_->addWidget(box, FirstLine, MiddleColumn, RoundLines, 1, Qt::AlignCenter);
    series_[FinalSeries] = box;
}

void BracketPanel::show(const Playoffs::Content& content) {
    for (const SeriesIndex series : AllSeries) {
        const SeriesPlace first{series, SeriesTeam::A};
        const SeriesPlace second{series, SeriesTeam::B};
        series_[series]->show({{content.team(first), content.team(second)},
                               {toQt(content.wins(first)), toQt(content.wins(second))},
                               content.winner(series)});
    }
    setStyleProperty(champion_, "champion", content.champion() != BlankTeam);
    showTeamBanner(champion_, content.champion());
    update();
}

void BracketPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (series_[FinalSeries]->isDecided()) {
        const int middle = series_[FinalSeries]->geometry().center().x();
        painter.setPen(QPen(ChampionColor, 2));
        painter.drawLine(middle, champion_->geometry().bottom(), middle, series_[FinalSeries]->y());
    }
    for (const SeriesIndex number : AllSeries) {
        const auto next = placeOfWinner(number);
        if (!next)
            continue;
        const SeriesBox& from = *series_[number];
        const QColor color = from.isDecided() ? palette().color(QPalette::Highlight) : OpenColor;
        painter.setPen(QPen(color, 2));
        painter.drawPath(lineBetween(from, *series_[next->series], next->team));
    }
}

} // namespace iceline::desktop
