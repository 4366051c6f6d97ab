// Hotspots from the user's JSON file (docs/hotspots-file.md), and the host's records built from
// them for one page.
#pragma once

#include "pageframe.h"

#include <vantora/host.h>

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>
#include <string>
#include <vector>

namespace vantora::cli {

struct HotspotSpec
{
    QString page; // base name of the page it belongs to; empty: every page
    bool info = false;
    std::optional<double> pan;  // degrees from the left edge, panoramas only
    std::optional<double> tilt; // degrees above the horizon
    std::optional<double> x;    // fraction of the picture's width from its left edge
    std::optional<double> y;    // fraction of the height from its top edge
    QString bitmap;             // absolute path, or ":/..." for a picture compiled into this tool
    QByteArray tooltip;
    QByteArray url;
    QByteArray target;
    QByteArray text;
};

// Reads and checks the whole file. False, with one line in `error`, on the first problem.
bool readHotspotFile(const QString &path, QVector<HotspotSpec> *hotspots, QString *error);
// The same for the file's bytes; `path` names the file in messages and anchors relative bitmaps.
bool parseHotspotFile(
    const QByteArray &bytes, const QString &path, QVector<HotspotSpec> *hotspots, QString *error);

// The host's hotspot list for one page: the records and the strings they point to.
class PageHotspots
{
public:
    PageHotspots() = default;
    // The list points into this object: it stays where it was built.
    PageHotspots(const PageHotspots &) = delete;
    PageHotspots &operator=(const PageHotspots &) = delete;

    // Takes the hotspots of `page`; false, with `error` set, when one lies outside the picture.
    bool build(const QVector<HotspotSpec> &all, const QString &page, const PageFrame &frame,
        QString *error);
    const HostHotspotList *list() const { return m_records.empty() ? nullptr : &m_list; }
    int count() const { return int(m_records.size()); }

private:
    std::vector<HotspotSpec> m_specs;
    std::vector<std::u16string> m_bitmaps;
    std::vector<HostHotspot> m_records;
    std::vector<HostHotspot *> m_pointers;
    HostHotspotList m_list {};
};

} // namespace vantora::cli
