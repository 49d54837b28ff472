#pragma once

#include "league/Numbers.h"
#include "teams/TeamView.h"

#include <array>
#include <string>
#include <string_view>

/// The figures of a team or a coach as pages, windows and the terminal show them: one row a column.
namespace iceline {

/// A figure: the label that shows it in a window, and its text.
struct TeamFigure {
    std::string_view control;
    std::string (*text)(const TeamView&) = nullptr;
};

/// A column: its heads, and the figures in its cell.
struct TeamColumn {
    std::string_view head;       ///< on pages and in the terminal
    std::string_view windowHead; ///< in windows
    std::array<TeamFigure, 3> figures{};
    std::size_t count = 0;      ///< of the figures that are used
    std::string_view sign = ""; ///< between the figures
    std::string_view windowHeadControl = "";

    std::span<const TeamFigure> shown() const { return std::span(figures).first(count); }

    /// The whole cell.
    std::string text(const TeamView& view) const;
};

/// Columns in their order.
using TeamColumns = std::span<const TeamColumn>;

namespace teamfigures {

inline std::string textOf(int value) {
    return std::to_string(value);
}
inline std::string textOf(double value) {
    return numberText(value);
}
inline std::string textOf(const std::string& value) {
    return value;
}

/// A field of the record; the label has the name of the field.
template <auto Field>
constexpr TeamFigure field(std::string_view name) {
    return {name, [](const TeamView& view) { return textOf(view.record.*Field); }};
}

template <int LastTen::*Count>
constexpr TeamFigure lastTen(std::string_view name) {
    return {name, [](const TeamView& view) { return textOf(view.lastTen.*Count); }};
}

constexpr TeamColumn one(std::string_view head, TeamFigure figure) {
    return {head, head, {figure}, 1};
}
constexpr TeamColumn pair(std::string_view head, std::string_view windowHead, TeamFigure a, TeamFigure b) {
    return {head, windowHead, {a, b}, 2, " / "};
}
constexpr TeamColumn triple(std::string_view head, TeamFigure wins, TeamFigure losses, TeamFigure ties) {
    return {head, head, {wins, losses, ties}, 3, " - "};
}
constexpr TeamColumn inWindow(TeamColumn column, std::string_view head, std::string_view control = "") {
    column.windowHead = head;
    column.windowHeadControl = control;
    return column;
}

using R = TeamRecord;

inline constexpr TeamColumn Points = one("Pts.", field<&R::Points>("Points"));

/// Games won, lost and tied, and what follows from them: all games, home and away are of one shape.
inline constexpr std::array Record{
    inWindow(
        triple("W - L - T", field<&R::Wins>("Wins"), field<&R::Losses>("Losses"), field<&R::Ties>("Ties")),
        "W - L - T", "Text26"),
    inWindow(one("Win%", field<&R::WinPercent>("WinPercent")), "Win%", "Text29"),
    inWindow(one("GP", field<&R::GP>("GP")), "GP", "Text31"),
    inWindow(one("GF", field<&R::GF>("GF")), "GF", "Text32"),
    inWindow(one("GA", field<&R::GA>("GA")), "GA", "Text34"),
    inWindow(one("GFA", field<&R::GFA>("GFA")), "GFA", "Text35"),
    inWindow(one("GAA", field<&R::GAA>("GAA")), "GAA", "Text36"),
    inWindow(one("Diff", field<&R::Diff>("Diff")), "Diff", "Text43"),
    inWindow(one("Pow.Rank", field<&R::PowerRanking>("PowerRanking")), "Power Ranking:", "Text42"),
};

inline constexpr std::array Home{
    triple("W - L - T", field<&R::HW>("HW"), field<&R::HL>("HL"), field<&R::HT>("HT")),
    one("Win%", field<&R::HWinPercent>("HWinPercent")),
    one("GP", field<&R::HGP>("HGP")),
    one("GF", field<&R::HGF>("HGF")),
    one("GA", field<&R::HGA>("HGA")),
    one("GFA", field<&R::HGFA>("HGFA")),
    one("GAA", field<&R::HGAA>("HGAA")),
    one("Diff", field<&R::HomeDiff>("HomeDiff")),
    one("Pow.Rank", field<&R::HomePowerRanking>("HomePowerRanking")),
};
static_assert(Home.size() == Record.size());

inline constexpr std::array Away{
    triple("W - L - T", field<&R::AW>("AW"), field<&R::AL>("AL"), field<&R::AT>("AT")),
    one("Win%", field<&R::AWinPercent>("AWinPercent")),
    one("GP", field<&R::AGP>("AGP")),
    one("GF", field<&R::AGF>("AGF")),
    one("GA", field<&R::AGA>("AGA")),
    one("GFA", field<&R::AGFA>("AGFA")),
    one("GAA", field<&R::AGAA>("AGAA")),
    one("Diff", field<&R::AwayDiff>("AwayDiff")),
    one("Pow.Rank", field<&R::AwayPowerRanking>("AwayPowerRanking")),
};
static_assert(Away.size() == Record.size());

inline constexpr std::array Overtime{
    triple("W - L - T", field<&R::OTW>("OTW"), field<&R::OTL>("OTL"), field<&R::OTT>("OTT")),
    one("Win%", field<&R::OTWPct>("OTWPct")),
    one("GP", field<&R::OTGP>("OTGP")),
};

/// The streak as windows and the terminal show it: "W 3", a blank and 0 before any game.
inline constexpr TeamColumn CurrentStreak = inWindow(
    one("Streak",
        {"Streak",
         [](const TeamView& v) { return v.streak.StreakLetter + " " + textOf(v.streak.StreakCount); }}),
    "Streak", "Text1");

/// The streak on pages: "W3", a bare 0 before any game.
inline constexpr TeamColumn PageStreak = one(
    "Streak",
    {"", [](const TeamView& view) { return view.streak.StreakLetter + textOf(view.streak.StreakCount); }});

inline constexpr TeamColumn LastTenGames =
    inWindow(triple("Last 10", lastTen<&LastTen::wins>("L10W"), lastTen<&LastTen::losses>("L10L"),
                    lastTen<&LastTen::ties>("L10T")),
             "Last 10", "Text12");

inline constexpr std::array Crowd{
    one("Arena dB Rec.", field<&R::ArenaMeter>("ArenaMeter")),
    one("League dB Rec.", {"LeagueMeter", [](const TeamView& view) { return textOf(view.LeagueMeter); }}),
};

inline constexpr std::array Totals{
    one("SOG", field<&R::SOG>("SOG")),
    inWindow(one("S%", field<&R::SOGPct>("SOGPct")), "Shot%"),
    one("SOGA", field<&R::SOGA>("SOGA")),
    pair("PPG/PPA", "PPG / PPA", field<&R::PPG>("PPG"), field<&R::PPA>("PPA")),
    one("PP%", field<&R::PPPct>("PPPct")),
    pair("Pen/PIM", "Pen / PIM", field<&R::Pen>("Pen"), field<&R::PIM>("PIM")),
    pair("PenA/PIMA", "PenA / PIMA", field<&R::PenA>("PenA"), field<&R::PIMA>("PIMA")),
};

inline constexpr std::array FurtherTotals{
    pair("PKG/PKO", "PKG / PKO", field<&R::PKG>("PKG"), field<&R::PKO>("PKO")),
    one("PK%", field<&R::PKPct>("PKPct")),
    pair("FOW/FOT", "FOW / FOT", field<&R::FOW>("FOW"), field<&R::FOT>("FOT")),
    one("FOW%", field<&R::FOWPct>("FOWPct")),
    one("ByCks", field<&R::ByCks>("ByCks")),
    pair("PsC/PsA", "PassComp / PassAtt", field<&R::PassComp>("PassComp"), field<&R::PassAtt>("PassAtt")),
    inWindow(one("PsAcc%", field<&R::PassAcc>("PassAcc")), "PassAcc.%"),
};

inline constexpr std::array Averages{
    one("SOG", field<&R::SOGPG>("SOGPG")),
    one("SOGA", field<&R::SOGAPG>("SOGAPG")),
    pair("PPG/PPA", "PPG / PPA", field<&R::PPGPG>("PPGPG"), field<&R::PPAPG>("PPAPG")),
    pair("Pen/PIM", "Pen / PIM", field<&R::PenPG>("PenPG"), field<&R::PIMPG>("PIMPG")),
    pair("PenA/PIMA", "PenA / PIMA", field<&R::PenAPG>("PenAPG"), field<&R::PIMAPG>("PIMAPG")),
};

inline constexpr std::array FurtherAverages{
    pair("PKG/PKO", "PKG / PKO", field<&R::PKGPG>("PKGPG"), field<&R::PKOPG>("PKOPG")),
    inWindow(one("Att.Zone", field<&R::AttZonePG>("AttZonePG")), "Att. Zone"),
    pair("FOW/FOT", "FOW / FOT", field<&R::FOWPG>("FOWPG"), field<&R::FOTPG>("FOTPG")),
    one("ByCks", field<&R::ByCksPG>("ByCksPG")),
    pair("PsC/PsA", "PassComp / PassAtt", field<&R::PassCompPG>("PassCompPG"),
         field<&R::PassAttPG>("PassAttPG")),
};

} // namespace teamfigures

inline std::string TeamColumn::text(const TeamView& view) const {
    std::string cell;
    for (const TeamFigure& figure : shown())
        cell.append(cell.empty() ? "" : sign).append(figure.text(view));
    return cell;
}

} // namespace iceline
