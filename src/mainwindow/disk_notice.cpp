#include "mainwindow/disk_notice.h"

#include "forms/controls.h"
#include "forms/elided_label.h"
#include "store/connection.h"

#include <QStatusBar>

namespace lorvo {

using namespace Qt::StringLiterals;

DiskNotice::DiskNotice(QStatusBar& bar) : QLabel(u"Data nelze načíst celá"_s, &bar) {
    Named(this, u"lblDisk"_s);
    setTextFormat(Qt::PlainText);
    bar.addPermanentWidget(this);
    hide();
}

void DiskNotice::Refresh() {
    const QString failure = TakeSkippedDiskFailure();
    setToolTip(PlainToolTip(failure));
    setVisible(!failure.isEmpty());
}

} // namespace lorvo
