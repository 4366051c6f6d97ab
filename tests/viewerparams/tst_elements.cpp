// The thumbnail gallery and map elements, their actions and the exported marker pictures.
#include "paramsfixture.h"

#include "viewerparams/galleryelement.h"
#include "viewerparams/mapelement.h"

#include <QImage>
#include <QtTest>

using namespace vantora;

namespace {

// clang-format off
// Members of the element (null: absent).
struct Gallery { const char *tag; int design; bool open; int position; const char *json; };
const Gallery GALLERIES[] = {
    {"design 0 closed above", 0, false, 0, R"J({"id":"thumbnailGallery","style":"opacity: 0; transition: opacity 0.5s","visible":false,"height":"0px","align":"lefttop","edgeEffect":"tilt","thumbnailHeight":96,"thumbnailWidth":96,"thumbnailPadding":8,"oninit":null,"thumbstyle":null,"selectionstyle":null})J"},
    {"design 7 open below", 7, true, 1, R"J({"id":"thumbnailGallery","style":"opacity: 1; transition: opacity 0.5s","visible":false,"height":"112px","align":"leftbottom","edgeEffect":"tilt","thumbnailHeight":96,"thumbnailWidth":96,"thumbnailPadding":8,"oninit":"function(){ var g = this.viewer.gallery(); if ((!!g) && g.length>1){ this.setVisible(true); } }","thumbstyle":null,"selectionstyle":null})J"},
    {"design 1 larger gaps", 1, false, 0, R"J({"thumbstyle":"box-shadow: rgb(0, 0, 0) 1px 1px 3px 1.7px;","thumbstylehover":"box-shadow: rgb(0, 0, 0) 1px 1px 3px 1.7px, 0px 0px 5px 4px rgba(255,255,255,0.5);","thumbnailHeight":90,"thumbnailWidth":90,"thumbnailPadding":11,"selectionstyle":null})J"},
    {"design 2", 2, false, 0, R"J({"thumbstyle":"border-radius: 3px; box-shadow: rgb(0, 0, 0) 1px 1px 3px 1.7px;","thumbstylehover":"border-radius: 3px; box-shadow: rgba(0, 0, 0, 0.8) 1px 1px 3px 1.2px;","selectionstyle":"border-radius: 3px;"})J"},
    {"design 3", 3, false, 0, R"J({"thumbstyle":"border-radius: 3px; box-shadow: rgba(0, 0, 0, 0.4) 1px 1px 3px 2px;","thumbstylehover":"border-radius: 3px; box-shadow: rgba(0, 0, 0, 0.3) 1px 1px 3px 1.2px;","selectionstyle":"border-radius: 3px;"})J"},
    {"design 4", 4, false, 0, R"J({"thumbstyle":"border-radius: 2px; box-shadow: rgba(0, 0, 0, 1) 0px 0px 1px 1px;","thumbstylehover":"border-radius: 2px; box-shadow: rgba(0, 0, 0, 1) 0px 0px 1px 1px;","selectionstyle":"border-radius: 2px; box-shadow: rgba(0, 0, 0, 0.8) 0px 0px 1px 1px;"})J"},
    {"design 5", 5, false, 0, R"J({"thumbstyle":"border-radius: 3px; box-shadow: rgba(0, 0, 0, 0.4) 2px 2px 3px 2px;","thumbstylehover":"border-radius: 3px; box-shadow: rgba(0, 0, 0, 0.4) 2px 2px 4px 1px;","selectionstyle":"border-radius: 3px; box-shadow: rgba(0, 0, 0, 0.4) 0px 0px 1px 1px;"})J"},
    {"design 6", 6, false, 0, R"J({"thumbstyle":"box-shadow: rgba(0, 0, 0, 0.4) 2px 2px 2px 0.5px;","thumbstylehover":null,"selectionstyle":null})J"},
};

struct Map { const char *tag; int design, type; bool visible, hideOnMarker, radar; const char *json; };
const Map MAPS[] = {
    {"design 0 closed hybrid", 0, 0, false, true, false, R"J({"align":"lefttop","apikey":"0123456789","id":"map","zoom":18,"type":"gmap","style":"opacity: 0; transition: opacity 0.5s","visible":false,"gmapstype":"hybrid","zoomcontrols":true,"typecontrols":true,"height":"0px","onmarkerclick":"function(){ this.viewer.action('hideMap',0.3); }","contentstyle":"position: absolute; left: 4px; right: 4px; bottom: 4px; top: 4px; display: inline; overflow: hidden;","oninit":null,"radar":null})J"},
    {"design 3 open osm with radar", 3, 3, true, false, true, R"J({"style":"opacity: 1; transition: opacity 0.5s","visible":true,"gmapstype":"osm","type":"gmap","oninit":"function(){ if (this.visible){ this.style = 'opacity: 1.0;'; this.updateStyles(); this.viewer.action('resizeMap'); } }","contentstyle":"position: absolute; left: 8px; right: 8px; bottom: 8px; top: 8px; display: inline; overflow: hidden; border-radius: 3px; box-shadow: rgba(0, 0, 0, 0.4) 1px 1px 3px 2px;","radar":{"radius":0.99,"width":256,"radarcontext":"function(c){ c.lineWidth = 1; if (!this.fillStyle){ var w = c.canvas.width/2; this.fillStyle=c.createRadialGradient(w,w,0,w,w,w); this.fillStyle.addColorStop(0,'rgba(255,255,255,0.5)');this.fillStyle.addColorStop(1,'rgba(255,255,255,0.1)');} c.fillStyle = this.fillStyle; if (!this.strokeStyle){ var w = c.canvas.width/2; this.strokeStyle=c.createRadialGradient(w,w,0,w,w,w); this.strokeStyle.addColorStop(0,'#ccc');this.strokeStyle.addColorStop(1,'rgba(192,192,192,0.7)');} c.strokeStyle = this.strokeStyle;  }"},"height":null,"onmarkerclick":null})J"},
    {"design 1 satellite", 1, 1, false, true, false, R"J({"gmapstype":"satellite","contentstyle":"position: absolute; left: 4px; right: 4px; bottom: 4px; top: 4px; display: inline; overflow: hidden; box-shadow: rgb(0, 0, 0) 1px 1px 3px 1.7px;","radar":null})J"},
    {"design 2 roadmap", 2, 2, false, true, false, R"J({"gmapstype":"roadmap","contentstyle":"position: absolute; left: 4px; right: 4px; bottom: 4px; top: 4px; display: inline; overflow: hidden; border-radius: 3px; box-shadow: rgb(0, 0, 0) 1px 1px 3px 1.7px;"})J"},
    {"design 4 unknown map type", 4, 4, false, true, false, R"J({"contentstyle":"position: absolute; left: 4px; right: 4px; bottom: 4px; top: 4px; display: inline; overflow: hidden; border-radius: 2px; box-shadow: rgba(0, 0, 0, 1) 0px 0px 1px 1px;","gmapstype":null})J"},
    {"design 5", 5, 0, false, true, false, R"J({"contentstyle":"position: absolute; left: 8px; right: 8px; bottom: 8px; top: 8px; display: inline; overflow: hidden; border-radius: 3px; box-shadow: rgba(0, 0, 0, 0.4) 2px 2px 3px 2px;"})J"},
    {"design 6", 6, 0, false, true, false, R"J({"contentstyle":"position: absolute; left: 8px; right: 8px; bottom: 8px; top: 8px; display: inline; overflow: hidden; box-shadow: rgba(0, 0, 0, 0.4) 2px 2px 2px 0.5px;"})J"},
    {"design 7", 7, 0, false, true, false, R"J({"contentstyle":"position: absolute; left: 8px; right: 8px; bottom: 8px; top: 8px; display: inline; overflow: hidden; border-radius: 2px;","gmarker":"{ url: 'pap_marker_redorange.png', scaledSize: new google.maps.Size(30,48), anchor: new google.maps.Point(15, 42) }","gmarkeractive":"{ url: 'pap_marker_lima.png', scaledSize: new google.maps.Size(30,48), anchor: new google.maps.Point(15, 42) }"})J"},
};
// clang-format on

// What the host's resource exporter was asked for, and the size of the picture it could read.
QStringList exportCalls;
std::uint32_t recordExport(const char16_t *source, const char16_t *target)
{
    const QString path = QString::fromUtf16(source);
    const QSize size = QImage(path).size();
    exportCalls << QString("%1 -> %2 (%3x%4)")
                       .arg(path, QString::fromUtf16(target))
                       .arg(size.width())
                       .arg(size.height());
    return 1;
}

} // namespace

class tst_Elements : public QObject
{
    Q_OBJECT

private slots:
    void gallery_data() { test::addRows(GALLERIES); }
    void gallery();
    void map_data() { test::addRows(MAPS); }
    void map();
    void markers();
};

void tst_Elements::gallery()
{
    QFETCH(int, row);
    const Gallery &g = GALLERIES[row];
    settings::ViewerSettings s;
    s.GalleryThumbnailVisible = g.open;
    s.GalleryPosition = g.position;
    QJsonObject element;
    QJsonArray actions;
    params::writeGalleryElement(element, actions, g.design, s);
    test::compareMembers(element, g.json);
    QCOMPARE(element.value("contentstyle").toString(),
        "position: absolute; left: 4px; right: 4px; bottom: 4px; color:#ffffff; font-family: Arial, Helvetica, sans-serif; font-size: 11px; text-shadow: 0px 0px 2px #000, 0px 0px 2px #000; font-weight: normal; text-align:center; display: inline; overflow: hidden;");
    QCOMPARE(test::ids(actions), "toggleGallery hideGallery");
    VANTORA_COMPARE_TEXT(actions.at(1)["func"].toString(),
        "function(a){ var d=this.viewer.get('thumbnailGallery');if (d&&d.visible&&!d.collapsing){ d.collapsing = !0; d.style = 'opacity: 0.0;'; d.updateStyles(); d.tween({'time': 0.3, 'transition': 'easeInOutSine', 'height': 0, 'onUpdate': function(a){ a.updateSize();  },'onComplete': function(a){ a.collapsing = !1; a.height = 0; a.updateSize(); a.setVisible(false); }});}}");
}

void tst_Elements::map()
{
    QFETCH(int, row);
    const Map &m = MAPS[row];
    settings::ViewerSettings s;
    s.GmAPIKey = "0123456789";
    s.MapType = m.type;
    s.MapVisible = m.visible;
    s.MapHideOnMarker = m.hideOnMarker;
    s.MapRadar = m.radar;
    QJsonArray actions;
    const QJsonObject element = params::buildMapElement(actions, m.design, s);
    test::compareMembers(element, m.json);
    QCOMPARE(test::ids(actions), "toggleMap hideMap resizeMap");
    VANTORA_COMPARE_TEXT(actions.at(2)["func"].toString(),
        "function(){ var map = this.get('map'); if (map && map.visible){  var h = Math.min(Math.max(this.viewer.height()*0.6, 96),this.viewer.height()-96);  map.height = h; map.updateSize();}}");
}

void tst_Elements::markers()
{
    // The pictures come from the library's own resources, readable by a host in the same process,
    // drawn at twice the 30 by 48 pixels the map shows them at.
    HostContext host {};
    host.exportResource = recordExport;
    for (const QString &folder : {QStringLiteral("C:\\out\\"), QString()}) {
        exportCalls.clear();
        params::exportMapMarkers(&host, folder);
        QCOMPARE(exportCalls,
            QStringList({":/marker/BMPS/hotspots/marker/marker_redorange.png -> " + folder
                    + "pap_marker_redorange.png (60x96)",
                ":/marker/BMPS/hotspots/marker/marker_lima.png -> " + folder
                    + "pap_marker_lima.png (60x96)"}));
    }
}

QTEST_MAIN(tst_Elements)
#include "tst_elements.moc"
