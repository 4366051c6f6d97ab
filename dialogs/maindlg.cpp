#include "maindlg.h"

#include "appletsettingsdlg.h"
#include "dialogframe.h"
#include "fovdlg.h"
#include "qualitydlg.h"
#include "targetprompt.h"

#include "plugin/hostaccess.h"
#include "plugin/messages.h"
#include "settings/viewersettings.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMouseEvent>
#include <QSignalBlocker>

#include <algorithm>

namespace vantora::dialogs {
namespace {

// scaleBox lists 100 % down to 10 % in steps of 5.
constexpr int SCALE_ENTRIES = 19;

} // namespace

// Texts set from code are looked up in the form's translation context, "MainDlg", rather than in
// the class's qualified name, so that one context holds every text of the dialog.
MainDlg::MainDlg(QWidget *parent, const QString &proposedPath, plugin::ExportJob *job)
    : QDialog(parent)
    , m_host(plugin::currentHost())
    , m_job(job)
{
    plugin::pluginState().dialogJob = job;
    setupUi(this);
    const bool flat = m_host && m_host->flatImage;

    filenameEdit->setText(withHtmlSuffix(proposedPath));
    filenameEdit->setMinimumWidth(scaledPixels(m_host, this, 420));
    filenameEdit->installEventFilter(this);
    // A name typed after the chooser has not been confirmed by it.
    connect(filenameEdit, &QLineEdit::textEdited, this, [this] { m_overwriteConfirmed = false; });

    {
        const QSignalBlocker blocker(typeBox);
        if (!flat)
            typeBox->addItem(QCoreApplication::translate("MainDlg", "Interaktives 3D-Panorama"));
        typeBox->addItem(QCoreApplication::translate("MainDlg", "Flaches 2D-Zoom-Bild"));
        typeBox->setCurrentIndex(0);
    }
    fovButton->setVisible(!(m_host && m_host->hideFovButton));
    updateFovButton();

    if (m_host) {
        pageSizeBox->setChecked(m_host->fitToPage != 0);
        widthBox->setValue(m_host->pageWidth);
        heightBox->setValue(m_host->pageHeight);
    }
    on_pageSizeBox_toggled(pageSizeBox->isChecked());

    {
        const QSignalBlocker blocker(scaleBox);
        for (int i = 0; i < SCALE_ENTRIES; ++i)
            scaleBox->addItem(QString::number(scaleOf(i)) + QLatin1Char('%'));
        scaleBox->setCurrentIndex(std::clamp(int(100 - m_job->scale) / 5, 0, SCALE_ENTRIES - 1));
    }
    on_scaleBox_currentIndexChanged(scaleBox->currentIndex());

    setUpDialog(this, m_host, m_host);
}

QString MainDlg::withHtmlSuffix(const QString &path)
{
    const QString suffix = QStringLiteral(".html");
    return path.endsWith(suffix, Qt::CaseSensitive) ? path : path + suffix;
}

bool MainDlg::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == filenameEdit && event->type() == QEvent::MouseButtonPress
        && static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton) {
        chooseFile();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void MainDlg::chooseFile()
{
    const QString chosen = QFileDialog::getSaveFileName(this,
        QCoreApplication::translate("MainDlg", "Interaktives Panorama/Zoom-Bild speichern..."),
        filenameEdit->text(),
        QCoreApplication::translate(
            "MainDlg", "Webseite mit interaktivem Panorama/Zoom-Bild (*.html)"));
    if (chosen.isEmpty())
        return;
    filenameEdit->setText(QDir::toNativeSeparators(chosen));
    // The chooser has asked about replacing an existing file.
    m_overwriteConfirmed = true;
}

void MainDlg::updateFovButton()
{
    fovButton->setEnabled(!(m_host && m_host->flatImage) && m_job->displayType == 0);
}

std::uint32_t MainDlg::scaleOf(int index)
{
    return std::uint32_t(20 - index) * 5;
}

void MainDlg::on_typeBox_currentIndexChanged(int index)
{
    const bool flat = m_host && m_host->flatImage;
    m_job->displayType = !flat && index == 1 ? 1 : 0;
    updateFovButton();
    // A flat zoom image is panned by dragging, on the desktop and on touch screens alike.
    if (index == 1) {
        settings::ViewerSettings &viewer = settings::viewerSettings();
        viewer.MouseMode = 1;
        viewer.TouchMode = 1;
    }
}

void MainDlg::on_scaleBox_currentIndexChanged(int index)
{
    if (index < 0)
        return;
    const std::uint64_t scale = scaleOf(index);
    m_job->outputWidth = std::uint32_t(m_job->imageWidth * scale / 100);
    m_job->outputHeight = std::uint32_t(m_job->imageHeight * scale / 100);
    sizeLabel->setText(QString::asprintf(
        QCoreApplication::translate("MainDlg", "%dx%d Pixel").toUtf8().constData(),
        int(m_job->outputWidth), int(m_job->outputHeight)));
    megapixelLabel->setText(QString::asprintf(
        QCoreApplication::translate("MainDlg", "%.2f Megapixel").toUtf8().constData(),
        double(m_job->outputWidth) * double(m_job->outputHeight) / 1000000.0));
}

void MainDlg::on_pageSizeBox_toggled(bool checked)
{
    const QList<QWidget *> sizeControls
        = {widthLabel, widthBox, heightLabel, heightBox, pixelLabel};
    for (QWidget *control : sizeControls)
        control->setEnabled(!checked);
}

void MainDlg::on_settingsButton_clicked()
{
    AppletSettingsDlg dialog(this);
    if (dialog.exec() == QDialog::Accepted)
        dialog.storeToSettings();
}

void MainDlg::on_fovButton_clicked()
{
    if (m_host && m_host->flatImage)
        return;
    FovDlg dialog(this, m_host, widthBox->value(), heightBox->value());
    dialog.loadFrom(plugin::view());
    if (dialog.exec() == QDialog::Accepted)
        dialog.storeTo(plugin::view());
}

void MainDlg::on_qualityButton_clicked()
{
    QualityDlg dialog(this, m_host);
    dialog.loadFrom(m_host ? m_host->jpegQuality : 0);
    if (dialog.exec() == QDialog::Accepted && m_host)
        m_host->jpegQuality = dialog.quality();
}

void MainDlg::on_outBox_accepted()
{
    const QString path = filenameEdit->text();
    if (!m_overwriteConfirmed && QFileInfo::exists(path)) {
        const QString question
            = QString::asprintf(QCoreApplication::translate(
                                    "MainDlg", "%ls besteht bereits.\nMöchten Sie sie ersetzen?")
                                    .toUtf8()
                                    .constData(),
                path.utf16());
        if (!plugin::askWarningYesNo(
                this, QCoreApplication::translate("MainDlg", "Hinweis"), question))
            return;
    }
    if (m_host) {
        m_host->pageWidth = widthBox->value();
        m_host->pageHeight = heightBox->value();
        m_host->fitToPage = pageSizeBox->isChecked() ? 1 : 0;
    }
    m_job->scale = scaleOf(scaleBox->currentIndex());
    m_acceptedPath = path;
    done(1);
}

void MainDlg::on_outBox_rejected()
{
    reject();
}

QString runMainDlg(HostContext &host, plugin::ExportJob &job)
{
    // A host without a widget application cannot show the dialog: nothing is chosen.
    if (!qobject_cast<QApplication *>(QCoreApplication::instance()))
        return QString();
    MainDlg dialog(
        static_cast<QWidget *>(host.parentWindow), plugin::fromHost(host.pathBuffer), &job);
    return dialog.exec() == 1 ? dialog.acceptedPath() : QString();
}

} // namespace vantora::dialogs
