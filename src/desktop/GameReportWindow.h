#pragma once

#include "games/GameReport.h"

#include <QWidget>

namespace iceline::desktop {

/// The report of a game of the history, in a window of its own, which goes when it is closed.
class GameReportWindow : public QWidget {
    Q_OBJECT

public:
    GameReportWindow(const QString& title, const GameReport& report, QWidget* parent);
};

} // namespace iceline::desktop
