// German message boxes of the export run, shown only where a dialog may appear.
#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;

namespace vantora::plugin {

// Translation context of the library's free functions.
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Vantora)
};

// A critical box with one OK button. Shown only with a parent window and a running widget
// application: a host without either gets no box.
void showCritical(QWidget *parent, const QString &title, const QString &text);

// A question box with Yes and No, Yes the default. False when it cannot be shown.
bool askYesNo(QWidget *parent, const QString &title, const QString &text);

// The same choice in a warning box, for questions about replacing a user's file.
bool askWarningYesNo(QWidget *parent, const QString &title, const QString &text);

} // namespace vantora::plugin
