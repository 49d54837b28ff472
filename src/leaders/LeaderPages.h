#pragma once

#include "files/Files.h"
#include "leaders/LeaderLists.h"
#include "page/PageFrame.h"

#include <span>
#include <string>

namespace iceline {

class Platform;

/// What differs between the four leader tables on the site's pages. A fragment's row is the number, the logo,
/// the name where there is one, and the figures, each with its texts around it.
struct LeaderRowForm {
    std::string_view beforeNumber;
    std::string_view beforeAbbr;
    std::string_view behindAbbr;
    std::string_view beforeFigure;
    std::string_view behindFigure;
    std::string_view rowEnd;
    std::span<const int> figureOrder; ///< columns in the order of the fragment's cells

    /// The picture row above a home page's block: around the name of the leader who has a card of his own, or
    /// around the abbreviation of the leading team.
    std::string_view beforePicture;
    std::string_view behindPicture;

    /// The card of a leader who has none of his own; null in the teams' table, whose rows name no player.
    std::string (*defaultCard)(Platform&) = nullptr;
};

extern const LeaderRowForm PlayerRowForm;
extern const LeaderRowForm GoalieRowForm;
extern const LeaderRowForm TeamRowForm;
extern const LeaderRowForm StarRowForm;

/// Adds the rows of a fragment, all of its text.
void addLeaderFragment(PageText& text, const LeaderRowForm& form, const LeaderList& list);

/// The rows of a home page's block, which show one column; `pictureRow` stands above them unless it is empty.
std::string leaderBlock(const LeaderRowForm& form, const LeaderList& list, std::size_t column,
                        const std::string& pictureRow);

/// The picture row of a block: the leading player's card or the leading team's banner. It is empty when the
/// first turn of the selection gave no row.
std::string leaderPictureRow(const LeaderRowForm& form, const LeaderList& list, Files& files,
                             Platform& platform);

} // namespace iceline
