#pragma once

#include "desktop/Controls.h"
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
    QGroupBox* makeSection(const RecordSection& section);
    void show(const ShownRecord& record);

    AllTimeRecords& object_;
    NamedLabels labels_;
};

} // namespace iceline::desktop
