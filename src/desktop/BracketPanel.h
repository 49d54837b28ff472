#pragma once

#include "playoffs/Playoffs.h"

#include <QWidget>

#include <array>

class QGridLayout;
class QLabel;

namespace iceline::desktop {

class SeriesBox;

/// The play-offs as a bracket: the Eastern Conference from the left, the Western from the right, the final
/// and the champion in the middle. Lines lead from each series to its winner's place in the next.
class BracketPanel : public QWidget {
    Q_OBJECT

public:
    explicit BracketPanel(QWidget* parent);

    void show(const Playoffs::Content& content);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void addHeading(Conference conference);
    void addConference(Conference conference);
    void addSeries(SeriesIndex series, Conference conference, int round, int index);
    void addMiddle();

    QGridLayout* grid_;
    std::array<SeriesBox*, SeriesCount> series_{};
    QLabel* champion_ = nullptr;
};

} // namespace iceline::desktop
