// The main export dialog: target page, display type, page size and output scale.
#pragma once

#include "ui_maindlg.h"

#include "plugin/pluginstate.h"

#include <vantora/host.h>

#include <QDialog>

namespace vantora::dialogs {

class MainDlg : public QDialog, private Ui::MainDlg
{
    Q_OBJECT

public:
    // proposedPath: the host's path buffer; job: the export being prepared, kept process-wide
    // for the dialogs opened from here.
    MainDlg(QWidget *parent, const QString &proposedPath, plugin::ExportJob *job);

    // The target path the user saved to; meaningful after acceptance.
    QString acceptedPath() const { return m_acceptedPath; }

    // Proposed path with ".html" appended unless its last five characters already are ".html".
    static QString withHtmlSuffix(const QString &path);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void on_typeBox_currentIndexChanged(int index);
    void on_scaleBox_currentIndexChanged(int index);
    void on_pageSizeBox_toggled(bool checked);
    void on_settingsButton_clicked();
    void on_fovButton_clicked();
    void on_qualityButton_clicked();
    void on_outBox_accepted();
    void on_outBox_rejected();

private:
    void chooseFile();
    void updateFovButton();
    // Scale in percent of scaleBox's entry `index`.
    static std::uint32_t scaleOf(int index);

    HostContext *m_host;
    plugin::ExportJob *m_job;
    QString m_acceptedPath;
    bool m_overwriteConfirmed = false;
};

} // namespace vantora::dialogs
