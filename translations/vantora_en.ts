<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>FovDlg</name>
    <message>
        <source>Sichtfeld-Einstellungen</source>
        <translation>Field of View Settings</translation>
    </message>
    <message>
        <source>Sichtfeld</source>
        <translation>Field of View</translation>
    </message>
    <message>
        <source>Die Blickrichtung zu Beginn kann mittels &apos;Pan&apos; und &apos;Tilt&apos; eingestellt werden. Das Sichtfeld zu Beginn sowie die minimalen und maximalen Werte können über die Felder in der Zeile &apos;HFov&apos; eingestellt werden.</source>
        <translation>The initial viewing direction can be set with &apos;Pan&apos; and &apos;Tilt&apos;. The initial field of view and its minimum and maximum can be set in the fields of the &apos;HFov&apos; row.</translation>
    </message>
    <message>
        <source>Min.</source>
        <translation>Min.</translation>
    </message>
    <message>
        <source>Max.</source>
        <translation>Max.</translation>
    </message>
    <message>
        <source>Pan (°)</source>
        <translation>Pan (°)</translation>
    </message>
    <message>
        <source>Horizontale Blickrichtung</source>
        <translation>Horizontal viewing direction</translation>
    </message>
    <message>
        <source>Horizontaler Schwenk</source>
        <translation>Horizontal pan</translation>
    </message>
    <message>
        <source>Tilt (°)</source>
        <translation>Tilt (°)</translation>
    </message>
    <message>
        <source>Vertikale Blickrichtung</source>
        <translation>Vertical viewing direction</translation>
    </message>
    <message>
        <source>Neigung</source>
        <translation>Tilt</translation>
    </message>
    <message>
        <source>HFov (°)</source>
        <translation>HFov (°)</translation>
    </message>
    <message>
        <source>Horizontales Sichtfeld</source>
        <translation>Horizontal field of view</translation>
    </message>
    <message>
        <source>Minimales Sichtfeld</source>
        <translation>Minimum field of view</translation>
    </message>
    <message>
        <source>Sichtfeld zu Beginn</source>
        <translation>Initial field of view</translation>
    </message>
    <message>
        <source>Maximales Sichtfeld</source>
        <translation>Maximum field of view</translation>
    </message>
    <message>
        <source>In Vorschau einstellen</source>
        <translation>Set in Preview</translation>
    </message>
</context>
<context>
    <name>MainDlg</name>
    <message>
        <source>Interaktives HTML5-Panorama/Zoom-Bild speichern...</source>
        <translation>Save Interactive HTML5 Panorama/Zoom Image...</translation>
    </message>
    <message>
        <source>Ausgabe</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>Dateiname:</source>
        <translation>File name:</translation>
    </message>
    <message>
        <source>Darstellungs-Typ:</source>
        <translation>Display type:</translation>
    </message>
    <message>
        <source>Der Dialog für die Viewer-Einstellungen ist noch nicht verfügbar.</source>
        <translation>The viewer settings dialog is not available yet.</translation>
    </message>
    <message>
        <source>Erweiterte Einstellungen...</source>
        <translation>Advanced Settings...</translation>
    </message>
    <message>
        <source>Sichtfeld-Einstellungen...</source>
        <translation>Field of View Settings...</translation>
    </message>
    <message>
        <source>Qualitäts-Einstellungen...</source>
        <translation>Quality Settings...</translation>
    </message>
    <message>
        <source>Fenstergröße</source>
        <translation>Window Size</translation>
    </message>
    <message>
        <source>An Seitengröße angepasst</source>
        <translation>Fit to page size</translation>
    </message>
    <message>
        <source>Breite:</source>
        <translation>Width:</translation>
    </message>
    <message>
        <source>Höhe:</source>
        <translation>Height:</translation>
    </message>
    <message>
        <source>Pixel</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>Ausgabegröße Panoramabild</source>
        <translation>Output Size of the Panorama Image</translation>
    </message>
    <message>
        <source>Aktuelle Größe</source>
        <translation>Current size</translation>
    </message>
    <message>
        <source>x Megapixel</source>
        <translation>x megapixels</translation>
    </message>
    <message>
        <source>Interaktives 3D-Panorama</source>
        <translation>Interactive 3D panorama</translation>
    </message>
    <message>
        <source>Flaches 2D-Zoom-Bild</source>
        <translation>Flat 2D zoom image</translation>
    </message>
    <message>
        <source>Interaktives Panorama/Zoom-Bild speichern...</source>
        <translation>Save Interactive Panorama/Zoom Image...</translation>
    </message>
    <message>
        <source>Webseite mit interaktivem Panorama/Zoom-Bild (*.html)</source>
        <translation>Web page with interactive panorama/zoom image (*.html)</translation>
    </message>
    <message>
        <source>%dx%d Pixel</source>
        <translation>%dx%d pixels</translation>
    </message>
    <message>
        <source>%.2f Megapixel</source>
        <translation>%.2f megapixels</translation>
    </message>
    <message>
        <source>%ls besteht bereits.
Möchten Sie sie ersetzen?</source>
        <translation>%ls already exists.
Do you want to replace it?</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
</context>
<context>
    <name>QualityDlg</name>
    <message>
        <source>Einstellungen für Qualität/Darstellung</source>
        <translation>Quality/Display Settings</translation>
    </message>
    <message>
        <source>Qualität/Darstellung</source>
        <translation>Quality/Display</translation>
    </message>
    <message>
        <source>Bildqualität (JPEG):</source>
        <translation>Image quality (JPEG):</translation>
    </message>
    <message>
        <source>geringe Qualität / kleine Dateien</source>
        <translation>low quality / small files</translation>
    </message>
    <message>
        <source>normale Qualität</source>
        <translation>normal quality</translation>
    </message>
    <message>
        <source>hohe Qualität / große Dateien</source>
        <translation>high quality / large files</translation>
    </message>
</context>
<context>
    <name>Vantora</name>
    <message>
        <source>Die Dateien für das interaktive Panorama/Zoom-Bild wurden erfolgreich gespeichert!
Im Ordner %ls wurden folgende Dateien erstellt:
%lsGesamtgröße der Dateien: %d KB

Jetzt im Browser anzeigen?</source>
        <translation>The files of the interactive panorama/zoom image were saved successfully!
The following files were created in the folder %ls:
%lsTotal size of the files: %d KB

Show it in the browser now?</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Bilddaten: </source>
        <translation>Image data: </translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Die Datei %ls kann nicht geschrieben werden!</source>
        <translation>The file %ls cannot be written!</translation>
    </message>
</context>
</TS>
