#pragma once

#include "desktop/LeagueWindow.h"
#include "records/AllTimeRecords.h"

class QGroupBox;

namespace iceline::desktop {

/// The best single-game figures ever set, in the season or in the play-offs.
class AllTimeRecordsWindow : public LeagueWindow {
    Q_OBJECT

public:
    AllTimeRecordsWindow(Application& application, WindowId id, AllTimeRecords& object);

protected:
    void refresh() override;

private:
    QGroupBox* makeSection(const char* frameName, const QString& caption,
                           const std::vector<ShownRecord>& records);
    void show(const std::vector<ShownRecord>& records);

    AllTimeRecords& object_;
};

} // namespace iceline::desktop
