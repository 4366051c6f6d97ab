// The dialog that chooses the JPEG quality with which the host writes the image tiles.
#pragma once

#include "ui_qualitydlg.h"

#include <vantora/host.h>

#include <QDialog>

namespace vantora::dialogs {

class QualityDlg : public QDialog, private Ui::QualityDlg
{
    Q_OBJECT

public:
    QualityDlg(QWidget *parent, HostContext *host);

    // Selects the entry for a stored quality in percent (0 when never set).
    void loadFrom(std::uint32_t quality);
    // The quality of the selected entry: 70, 80 or 90.
    std::uint32_t quality() const;
};

} // namespace vantora::dialogs
