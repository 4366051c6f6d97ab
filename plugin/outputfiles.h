// Writing and copying the files of one export around the host's own writing of the image data.
#pragma once

#include <vantora/host.h>

#include <QString>

#include <cstdint>

class QWidget;

namespace vantora::plugin {

// Size of a file in bytes, 0 when absent.
std::uint64_t fileSize(const QString &path);

// Sum of the sizes of the regular files directly in `folder`; links and sub-folders excluded.
std::uint64_t folderSize(const QString &folder);

// Opens `path` for reading and writing, creating it when absent. On failure shows "Die Datei %ls
// kann nicht geschrieben werden!" over `parent` (when there is one) and returns false.
bool testWritable(const QString &path, QWidget *parent);

// Where the host installs the viewer script: installation folder + VantoraViewer + script.
QString viewerScriptSource(const HostContext &host);

// The name of the tour-gallery file in the output folder.
QString galleryFileName(bool extensionJs);

struct WriteRequest
{
    QString viewerFolder;
    QString userFolder;
    QString imageFolder;
    QString pageName;
    QString paramsFile; // with the first auxiliary name already joined in front
    QString controlsFile;
    QString auxName2;
};

// Copies the viewer script, logo and sound, has the parameter file (and with it the tiles)
// written, then the page. Adds the image data's bytes to *imageDataBytes. Returns 0 on success
// and 2 when the parameter file could not be written.
int writeAllFiles(HostContext &host, const WriteRequest &request, std::uint64_t *imageDataBytes);

} // namespace vantora::plugin
