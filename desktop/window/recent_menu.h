// The menu of the drawings that were opened or saved last.
#pragma once

#include "sdk/sys/string.h"

#include <QMenu>

namespace quor::desktop {

class RecentFiles;

class RecentMenu final : public QMenu {
    Q_OBJECT

public:
    // Reads the files each time it opens.
    RecentMenu(RecentFiles& files, QWidget* parent);

Q_SIGNALS:
    void chosen(const ZrString& file);

private:
    void fill();

    RecentFiles& files_;
};

} // namespace quor::desktop
