// The dialog that sets the start view of the page and its zoom limits, with the host's preview.
#pragma once

#include "ui_fovdlg.h"

#include "plugin/pluginstate.h"

#include <vantora/host.h>

#include <QDialog>

namespace vantora::dialogs {

class FovDlg : public QDialog, private Ui::FovDlg
{
    Q_OBJECT

public:
    // pageWidth and pageHeight: the main dialog's page size, handed to the host's preview.
    FovDlg(QWidget *parent, HostContext *host, std::int32_t pageWidth, std::int32_t pageHeight);

    // Shows the image's extent from the host and `view` in the editable fields.
    void loadFrom(const plugin::View &view);
    // The view as the fields hold it; no relation between the limits and the start is enforced.
    void storeTo(plugin::View &view) const;

private slots:
    void on_previewButton_clicked();

private:
    HostContext *m_host;
    std::int32_t m_pageWidth;
    std::int32_t m_pageHeight;
};

} // namespace vantora::dialogs
