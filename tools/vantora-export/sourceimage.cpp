#include "sourceimage.h"

#include <QFileInfo>

#include <vips/vips8>

namespace vantora::cli {

namespace {

// The image library warns once per damaged tile; the tool reports a failed export in one line.
void dropWarning(const gchar *, GLogLevelFlags, const gchar *, gpointer) { }

} // namespace

bool initImageLibrary(const char *argv0)
{
    if (VIPS_INIT(argv0) != 0)
        return false;
    g_log_set_handler("VIPS", G_LOG_LEVEL_WARNING, dropWarning, nullptr);
    return true;
}

bool openSourceImage(const QString &path, SourceImage *image, QString *error)
{
    const QFileInfo info(path);
    if (!info.isFile() || !info.isReadable()) {
        *error = QStringLiteral("cannot read %1").arg(path);
        return false;
    }
    // The loader reads the header only; the pixels are streamed later, while the tiles are cut.
    const char *loader = vips_foreign_find_load(QFile::encodeName(path).constData());
    if (!loader) {
        vips_error_clear();
        *error = QStringLiteral("%1 is not a picture").arg(path);
        return false;
    }
    try {
        const vips::VImage header = vips::VImage::new_from_file(QFile::encodeName(path).constData(),
            vips::VImage::option()->set("access", VIPS_ACCESS_SEQUENTIAL));
        image->path = info.absoluteFilePath();
        image->width = header.width();
        image->height = header.height();
        image->name = info.fileName();
    } catch (const vips::VError &) {
        vips_error_clear();
        *error = QStringLiteral("%1 is not a readable picture").arg(path);
        return false;
    }
    return true;
}

SourceImage sourceFromMemory(const QImage &picture, const QString &name)
{
    SourceImage image;
    image.memory = picture.convertToFormat(QImage::Format_RGB888);
    image.width = picture.width();
    image.height = picture.height();
    image.name = name;
    return image;
}

} // namespace vantora::cli
