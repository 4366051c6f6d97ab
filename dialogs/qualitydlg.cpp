#include "qualitydlg.h"

#include "dialogframe.h"

namespace vantora::dialogs {
namespace {

// The quality of each entry of qualityBox, in its order.
constexpr std::uint32_t QUALITIES[] = {70, 80, 90};

} // namespace

QualityDlg::QualityDlg(QWidget *parent, HostContext *host)
    : QDialog(parent)
{
    setupUi(this);
    setUpDialog(this, host, nullptr);
}

void QualityDlg::loadFrom(std::uint32_t quality)
{
    qualityBox->setCurrentIndex(quality <= 70 ? 0 : quality < 90 ? 1 : 2);
}

std::uint32_t QualityDlg::quality() const
{
    const int index = qualityBox->currentIndex();
    return index >= 0 && index < int(std::size(QUALITIES)) ? QUALITIES[index] : QUALITIES[1];
}

} // namespace vantora::dialogs
