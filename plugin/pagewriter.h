// The HTML page of an export.
#pragma once

#include <QByteArray>
#include <QString>

namespace vantora::plugin {

struct PageInput
{
    QString nameForBase; // the name B is taken from (its file name without extension)
    QString paramsFile;  // the parameter file's name, without folder
    QString title;       // inserted as it is, no escaping
    int pageWidth = 0;
    int pageHeight = 0;
    bool fitToPage = false;
    bool showWebGLWarning = false;
};

// The page text, before the platform's line ends.
QByteArray pageText(const PageInput &input);

// Writes the page in text mode (platform line ends); false when it cannot be opened.
bool writePage(const QString &pagePath, const PageInput &input);

} // namespace vantora::plugin
