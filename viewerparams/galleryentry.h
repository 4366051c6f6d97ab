// What a tour takes from one viewer file of the output folder: the panorama's description and
// location, or nothing when the file is not the parameter file of an earlier export.
#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace vantora::params {

struct PanoramaSummary
{
    QString text;         // the short description, empty when there is none
    QJsonObject location; // empty when there is none
};

// Larger files are passed over unread. A parameter file holds a few kilobytes, with thousands of
// hotspots a few megabytes; 16 MiB leaves room for that many times over, while the JSON reader's
// working memory (several times the text) stays well below what an export may take.
constexpr qint64 MAX_PARAMS_FILE_BYTES = 16 * 1024 * 1024;

// The first bytes of a file decide whether the rest is worth reading: false when `head` (the
// start of the file, or all of it when `whole`) shows that the file cannot be a parameter file.
bool mayBeParamsFile(const QByteArray &head, bool whole);

// The summary of a file with these bytes, read as text (carriage returns dropped), or nothing when
// it is not a parameter file of a version the tour links.
std::optional<PanoramaSummary> panoramaFromBytes(QByteArray bytes);

// The same decision on a document already parsed from what follows the prefix.
std::optional<PanoramaSummary> panoramaFromDocument(const QJsonDocument &document);

} // namespace vantora::params
