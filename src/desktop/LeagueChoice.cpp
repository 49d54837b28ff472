#include "desktop/LeagueChoice.h"

#include "app/ProgramFolder.h"
#include "store/LeaguePaths.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QSettings>
#include <QStandardPaths>

namespace iceline::desktop {

namespace {

namespace fs = std::filesystem;

constexpr QLatin1String LastLeague("league/last");

bool isThere(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(path, ignored);
}

bool isLeague(const fs::path& folder) {
    return isThere(folder / paths::OverallGameNumber);
}

fs::path toPath(const QString& path) {
    return path.toStdU16String();
}

std::optional<fs::path> chosenByUser() {
    QMessageBox box(
        QMessageBox::Question, QStringLiteral("Iceline Scorebook"),
        QStringLiteral("There is no league beside the program.\n\nPlease choose the folder of your "
                       "league, or an empty folder for a new one."),
        QMessageBox::Ok | QMessageBox::Cancel);
    box.setObjectName(QStringLiteral("LeagueQuestion"));
    if (box.exec() != QMessageBox::Ok)
        return std::nullopt;
    const QString folder = QFileDialog::getExistingDirectory(
        nullptr, QStringLiteral("League Folder"),
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    return folder.isEmpty() ? std::nullopt : std::optional(toPath(folder));
}

} // namespace

std::optional<fs::path> leagueToOpen() {
    const fs::path beside = programFolder();
    if (isLeague(beside) || isThere(beside / "portable"))
        return beside;
    const fs::path last = toPath(QSettings().value(LastLeague).toString());
    return isLeague(last) ? last : chosenByUser();
}

void rememberLeague(const fs::path& folder) {
    QSettings().setValue(LastLeague, QString::fromStdU16String(folder.u16string()));
}

} // namespace iceline::desktop
