// The pictures the tool exports: an image file streamed by the image library, or the sample drawn
// in memory. Opening checks that a file really is a picture before any export starts.
#pragma once

#include <QImage>
#include <QString>

namespace vantora::cli {

// Starts the image library once per process; false when it cannot run.
bool initImageLibrary(const char *argv0);

struct SourceImage
{
    QString path;  // an image file; empty for a picture held in memory
    QImage memory; // Format_RGB888, used when `path` is empty
    int width = 0;
    int height = 0;
    QString name; // what the summary and the errors call it
};

// Reads only the header of `path`. False, with `error` set to one line, when the file cannot be
// read or is not a picture the image library knows.
bool openSourceImage(const QString &path, SourceImage *image, QString *error);

// Wraps a picture drawn in memory.
SourceImage sourceFromMemory(const QImage &picture, const QString &name);

} // namespace vantora::cli
