#include "fovdlg.h"

#include "dialogframe.h"

namespace vantora::dialogs {

FovDlg::FovDlg(QWidget *parent, HostContext *host, std::int32_t pageWidth, std::int32_t pageHeight)
    : QDialog(parent)
    , m_host(host)
    , m_pageWidth(pageWidth)
    , m_pageHeight(pageHeight)
{
    setupUi(this);
    const int fieldWidth = scaledPixels(host, this, 90);
    for (QDoubleSpinBox *box : {panMinBox, panBox, panMaxBox, tiltMinBox, tiltBox, tiltMaxBox,
             minHfovBox, hfovBox, maxHfovBox})
        box->setMinimumWidth(fieldWidth);
    previewButton->setEnabled(host && host->preview);
    setUpDialog(this, host, nullptr);
}

void FovDlg::loadFrom(const plugin::View &view)
{
    if (m_host) {
        panMinBox->setValue(m_host->startPan);
        panMaxBox->setValue(m_host->endPan);
        // The host counts tilt downward; the dialog shows it upward, so the image's lower edge
        // (the larger bound) becomes the smaller value.
        tiltMinBox->setValue(-m_host->lowerEdgeTilt);
        tiltMaxBox->setValue(-m_host->upperEdgeTilt);
    }
    panBox->setValue(view.pan);
    tiltBox->setValue(view.tilt);
    minHfovBox->setValue(view.minhfov);
    hfovBox->setValue(view.hfov);
    maxHfovBox->setValue(view.maxhfov);
}

void FovDlg::storeTo(plugin::View &view) const
{
    view.minhfov = minHfovBox->value();
    view.maxhfov = maxHfovBox->value();
    view.pan = panBox->value();
    view.tilt = tiltBox->value();
    view.hfov = hfovBox->value();
}

void FovDlg::on_previewButton_clicked()
{
    if (!m_host || !m_host->preview)
        return;
    double pan = panBox->value();
    double tilt = tiltBox->value();
    double hfov = hfovBox->value();
    if (m_host->preview(m_host, &pan, &tilt, &hfov, m_pageWidth, m_pageHeight, minHfovBox->value(),
            maxHfovBox->value(), m_host->previewCookie)
        == 0)
        return;
    panBox->setValue(pan);
    tiltBox->setValue(tilt);
    hfovBox->setValue(hfov);
}

} // namespace vantora::dialogs
