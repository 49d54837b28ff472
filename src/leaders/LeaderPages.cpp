#include "leaders/LeaderPages.h"

#include "players/PlayerCards.h"

namespace iceline {

namespace {

constexpr std::array PlayerOrder{8, 0, 1, 2, 3, 10, 9, 4, 5, 6, 7};
constexpr std::array GoalieOrder{10, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
constexpr std::array TeamOrder{0, 9, 10, 11, 1, 2, 3, 4, 5, 6, 7, 8};
constexpr std::array StarOrder{0};

constexpr std::string_view CentredNumber = "<tr><td><center><b>";
constexpr std::string_view CentredLogo = "</b></center></td><td><center><img src=\"../LogoMinis/";

std::string defaultGoalieCard(Platform&) {
    return std::string(DefaultGoalieCard);
}

} // namespace

constexpr LeaderRowForm PlayerRowForm{
    .beforeNumber = CentredNumber,
    .beforeAbbr = CentredLogo,
    .behindAbbr = ".gif\"></center></td><td>",
    .beforeFigure = "<td><center>",
    .behindFigure = "</center></td>",
    .rowEnd = "</tr>",
    .figureOrder = PlayerOrder,
    .beforePicture = "<tr><td colspan = 4><center><img src=\"./PlayerCards/",
    .behindPicture = ".gif\"></center></td></tr>",
    .defaultCard = defaultSkaterCard,
};

constexpr LeaderRowForm GoalieRowForm{
    .beforeNumber = "<tr><td><b>",
    .beforeAbbr = "</b></center></td><td><img src=\"../LogoMinis/",
    .behindAbbr = ".gif\"></td></center><td>",
    .beforeFigure = "<td><center>",
    .behindFigure = "</center></td>",
    .rowEnd = "</tr>",
    .figureOrder = GoalieOrder,
    .beforePicture = "<tr><td colspan = 4><img src=\"./PlayerCards/",
    .behindPicture = ".gif\"></img></td>",
    .defaultCard = defaultGoalieCard,
};

constexpr LeaderRowForm TeamRowForm{
    .beforeNumber = CentredNumber,
    .beforeAbbr = CentredLogo,
    .behindAbbr = ".gif\"></img>",
    .beforeFigure = "</center></td><td><center>",
    .behindFigure = "",
    .rowEnd = "</center></td></tr>",
    .figureOrder = TeamOrder,
    .beforePicture = "<tr><td colspan = 4><center><img src=\"./BannerMinis/",
    .behindPicture = ".gif\"></center></td></tr>",
};

constexpr LeaderRowForm StarRowForm{
    .beforeNumber = CentredNumber,
    .beforeAbbr = CentredLogo,
    .behindAbbr = ".gif\"></img></center></td><td><center>",
    .beforeFigure = "</td><td><center>",
    .behindFigure = "</center></td>",
    .rowEnd = "</tr>",
    .figureOrder = StarOrder,
    .beforePicture = GoalieRowForm.beforePicture,
    .behindPicture = GoalieRowForm.behindPicture,
    .defaultCard = defaultSkaterCard,
};

void addLeaderFragment(PageText& text, const LeaderRowForm& form, const LeaderList& list) {
    for (const LeaderLine& line : list.lines) {
        text.add(form.beforeNumber).add(std::to_string(line.number));
        text.add(form.beforeAbbr).add(TeamAbbr[line.team]).add(form.behindAbbr).add(line.name);
        for (const int column : form.figureOrder)
            text.add(form.beforeFigure).add(line.figures[column]).add(form.behindFigure);
        text.line(form.rowEnd);
    }
}

std::string leaderBlock(const LeaderRowForm& form, const LeaderList& list, std::size_t column,
                        const std::string& pictureRow) {
    PageText text;
    if (!pictureRow.empty())
        text.line(pictureRow);
    for (const LeaderLine& line : list.lines) {
        text.add(CentredNumber).add(std::to_string(line.number));
        text.add("</b></center></td><td><center><img src=\"./LogoMinis/").add(TeamAbbr[line.team]);
        text.add(".gif\"></center></td><td>");
        if (form.defaultCard)
            text.add(line.name).add("</td><td>");
        text.add("<center>").add(line.figures[column]).line("</td></tr>");
    }
    return text.text();
}

std::string leaderPictureRow(const LeaderRowForm& form, const LeaderList& list, Files& files,
                             Platform& platform) {
    if (!list.startsWithFirstTurn)
        return "";
    const LeaderLine& leader = list.lines.front();
    const std::string picture = form.defaultCard ? leader.name : std::string(TeamAbbr[leader.team]);
    if (form.defaultCard && !hasPlayerCard(files, picture))
        return "<tr><td colspan = 4><center><img src=\"./PlayerCards/" + form.defaultCard(platform) +
               ".gif\"></img></center></td></tr>";
    return std::string(form.beforePicture) + picture + std::string(form.behindPicture);
}

} // namespace iceline
