<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>AppletSettingsDlg</name>
    <message>
        <source>Einstellungen für den Vantora Viewer</source>
        <translation>Settings for the Vantora Viewer</translation>
    </message>
    <message>
        <source>Einstellungen</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Allgemein</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Bedienelemente</source>
        <translation>Controls</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Info-Box</source>
        <translation>Info Box</translation>
    </message>
    <message>
        <source>Auto-Play</source>
        <translation>Auto-Play</translation>
    </message>
    <message>
        <source>Steuerung</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>Kontextmenü</source>
        <translation>Context Menu</translation>
    </message>
    <message>
        <source>Tour-Galerie</source>
        <translation>Tour Gallery</translation>
    </message>
    <message>
        <source>Kompass/Radar</source>
        <translation>Compass/Radar</translation>
    </message>
    <message>
        <source>Karte</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>VR-Modus (beta)</source>
        <translation>VR Mode (beta)</translation>
    </message>
    <message>
        <source>Voreinstellungen</source>
        <translation>Presets</translation>
    </message>
    <message>
        <source>Einstellungen laden:</source>
        <translation>Load settings:</translation>
    </message>
    <message>
        <source>Speichern...</source>
        <translation>Save...</translation>
    </message>
    <message>
        <source>Löschen...</source>
        <translation>Delete...</translation>
    </message>
    <message>
        <source>Nur für 360x180°-Kugelpanoramen verfügbar.</source>
        <translation>Only available for 360x180° spherical panoramas.</translation>
    </message>
    <message>
        <source>Ein Kugelpanorama zu Beginn von einer LittlePlanet - Ansicht auf das eingestellte Sichtfeld schwenken.</source>
        <translation>Swing a spherical panorama at the start from a LittlePlanet view to the set field of view.</translation>
    </message>
    <message>
        <source>Darstellung für VR-Headsets anbieten.</source>
        <translation>Offer a display for VR headsets.</translation>
    </message>
    <message>
        <source>Steuerung mittels Bewegungssensor ein/aus</source>
        <translation>Control by motion sensor on/off</translation>
    </message>
    <message>
        <source>Unter &quot;Steuerung&quot; zunächst die Gyroskop-Steuerung aktivieren</source>
        <translation>First enable gyroscope control under &quot;Navigation&quot;</translation>
    </message>
    <message>
        <source>Orientierung ausgeben</source>
        <translation>Output the orientation</translation>
    </message>
    <message>
        <source>Standort in Karte anzeigen</source>
        <translation>Show the location on a map</translation>
    </message>
    <message>
        <source>Audiodatei einfügen</source>
        <translation>Insert Audio File</translation>
    </message>
    <message>
        <source>Audiodateien (*.mp3);;Alle Dateien (*)</source>
        <translation>Audio files (*.mp3);;All files (*)</translation>
    </message>
    <message>
        <source>Bilddatei einfügen</source>
        <translation>Insert Picture File</translation>
    </message>
    <message>
        <source>Bilddateien (*.jpg *.gif *.png);;Alle Dateien (*)</source>
        <translation>Picture files (*.jpg *.gif *.png);;All files (*)</translation>
    </message>
    <message>
        <source>Einstellung speichern</source>
        <translation>Save Settings</translation>
    </message>
    <message>
        <source>Bezeichnung:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Hinweis</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Eine Einstellung mit dieser Bezeichnung existiert bereits!
Überschreiben?</source>
        <translation>A setting with this name already exists!
Overwrite?</translation>
    </message>
    <message>
        <source>Fehler</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Einstellung konnte nicht gespeichert werden!
Die Bezeichnung enthielt möglicherweise ein ungültiges Zeichen.</source>
        <translation>The setting could not be saved!
The name may have contained an invalid character.</translation>
    </message>
    <message>
        <source>Diese Einstellung wirklich löschen?</source>
        <translation>Really delete this setting?</translation>
    </message>
    <message>
        <source>Die Einstellung konnte nicht gelesen werden:
%1
Die Einstellungen bleiben unverändert.</source>
        <translation>The setting could not be read:
%1
The settings stay as they were.</translation>
    </message>
    <message>
        <source>Google Maps API Key</source>
        <translation>Google Maps API Key</translation>
    </message>
    <message>
        <source>Um Google Maps im Viewer darzustellen, wird ein kostenloser API-Key von Google benötigt.&lt;br&gt;&lt;br&gt;Wie Sie einen Schlüssel erhalten, beschreibt Google hier:&lt;br&gt;&lt;a href=&quot;https://developers.google.com/maps/documentation/javascript/get-api-key&quot;&gt;https://developers.google.com/maps/documentation/javascript/get-api-key&lt;/a&gt;</source>
        <translation>Showing Google Maps in the viewer needs a free API key from Google.&lt;br&gt;&lt;br&gt;Google describes how to obtain a key here:&lt;br&gt;&lt;a href=&quot;https://developers.google.com/maps/documentation/javascript/get-api-key&quot;&gt;https://developers.google.com/maps/documentation/javascript/get-api-key&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Warnung</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Google Maps kann nur im Viewer dargestellt werden, wenn ein Google Maps API-Key eingetragen ist!</source>
        <translation>Google Maps can only be shown in the viewer when a Google Maps API key has been entered!</translation>
    </message>
    <message>
        <source>Farbauswahl</source>
        <translation>Select Colour</translation>
    </message>
    <message>
        <source>Standard-Einstellungen wiederherstellen</source>
        <translation>Restore the default settings</translation>
    </message>
    <message>
        <source>%1 (keine Daten vorhanden)</source>
        <translation>%1 (no data available)</translation>
    </message>
</context>
<context>
    <name>AudioPage</name>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Hintergrund-Musik/-Geräusche hinzufügen:</source>
        <translation>Add background music/sounds:</translation>
    </message>
    <message>
        <source>Datei:</source>
        <translation>File:</translation>
    </message>
    <message>
        <source>Automatisch abspielen</source>
        <translation>Play automatically</translation>
    </message>
    <message>
        <source>In Endlosschleife abspielen</source>
        <translation>Play in an endless loop</translation>
    </message>
    <message>
        <source>Für alle Panoramen einer virtuellen Tour verwenden</source>
        <translation>Use for all panoramas of a virtual tour</translation>
    </message>
    <message>
        <source>Ist das Panorama Teil einer virtuellen Tour, dann dieses Audio-Element in allen Panoramen der Tour abspielen.</source>
        <translation>If the panorama is part of a virtual tour, play this audio in all panoramas of the tour.</translation>
    </message>
</context>
<context>
    <name>AutoPlayPage</name>
    <message>
        <source>Auto-Play</source>
        <translation>Auto-Play</translation>
    </message>
    <message>
        <source>Auto-Play aktivieren</source>
        <translation>Enable auto-play</translation>
    </message>
    <message>
        <source>Neustart nach Nutzeraktion:</source>
        <translation>Restart after user action:</translation>
    </message>
    <message>
        <source>sek</source>
        <translation>sec</translation>
    </message>
    <message>
        <source>Auto-Pan-Rate (°/sek):</source>
        <translation>Auto-pan rate (°/sec):</translation>
    </message>
    <message>
        <source>Auto-Tilt-Rate (°/sek):</source>
        <translation>Auto-tilt rate (°/sec):</translation>
    </message>
    <message>
        <source>Auto-Zoom-Rate (/sek):</source>
        <translation>Auto-zoom rate (/sec):</translation>
    </message>
    <message>
        <source>LittlePlanet-Intro</source>
        <translation>LittlePlanet intro</translation>
    </message>
</context>
<context>
    <name>ContextMenuPage</name>
    <message>
        <source>Kontextmenü</source>
        <translation>Context Menu</translation>
    </message>
    <message>
        <source>Kontextmenü hinzufügen</source>
        <translation>Add a context menu</translation>
    </message>
    <message>
        <source>Einträge</source>
        <translation>Entries</translation>
    </message>
    <message>
        <source>&apos;Vollbild&apos;</source>
        <translation>&apos;Full screen&apos;</translation>
    </message>
    <message>
        <source>&apos;Normale Ansicht&apos; / &apos;LittlePlanet-Ansicht&apos;</source>
        <translation>&apos;Normal view&apos; / &apos;LittlePlanet view&apos;</translation>
    </message>
    <message>
        <source>Für 360x180°-Panoramen. Ist WebGL verfügbar, dann kann ein Panorama in &apos;LittlePlanet&apos;-Ansicht dargestellt werden.</source>
        <translation>For 360x180° panoramas. Where WebGL is available, a panorama can be shown in &apos;LittlePlanet&apos; view.</translation>
    </message>
    <message>
        <source>Benutzerdefinierter Eintrag</source>
        <translation>Custom entry</translation>
    </message>
    <message>
        <source>Beschriftung:</source>
        <translation>Caption:</translation>
    </message>
    <message>
        <source>Aktion (JavaScript):</source>
        <translation>Action (JavaScript):</translation>
    </message>
    <message>
        <source>&apos;Gyroskop-Steuerung&apos; an/aus</source>
        <translation>&apos;Gyroscope control&apos; on/off</translation>
    </message>
    <message>
        <source>&apos;Über den Vantora Viewer&apos;</source>
        <translation>&apos;About the Vantora Viewer&apos;</translation>
    </message>
</context>
<context>
    <name>ControlPage</name>
    <message>
        <source>Steuerung</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>Maus-Steuerung:</source>
        <translation>Mouse control:</translation>
    </message>
    <message>
        <source>Kamera bewegen</source>
        <translation>Move the camera</translation>
    </message>
    <message>
        <source>Bild ziehen</source>
        <translation>Drag the picture</translation>
    </message>
    <message>
        <source>Touch-Steuerung:</source>
        <translation>Touch control:</translation>
    </message>
    <message>
        <source>Zoomen per Mausrad:</source>
        <translation>Zoom with the mouse wheel:</translation>
    </message>
    <message>
        <source>Auf Cursor-Position zoomen</source>
        <translation>Zoom towards the cursor position</translation>
    </message>
    <message>
        <source>Auf Bildmitte zoomen</source>
        <translation>Zoom towards the picture centre</translation>
    </message>
    <message>
        <source>Gyroskop-Steuerung hinzufügen</source>
        <translation>Add gyroscope control</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Auf Geräten mit Bewegungssensor und kompatiblen Browsern die Steuerung der Ansicht durch Bewegen des Gerätes anbieten.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;On devices with a motion sensor and compatible browsers, offer control of the view by moving the device.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Gyroskop-Steuerung beim Start aktiv</source>
        <translation>Gyroscope control active at start</translation>
    </message>
</context>
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
    <name>GalleryPage</name>
    <message>
        <source>Tour-Galerie</source>
        <translation>Tour Gallery</translation>
    </message>
    <message>
        <source>&lt;img src=&quot;:/info/BMPS/png/info.png&quot; align=&quot;left&quot;/&gt;&lt;b&gt;Fügt Vorschaubilder und Navigation für den Wechsel zwischen verschiedenen Panoramen hinzu.&lt;/b&gt;&lt;br/&gt;Beim Speichern werden alle anderen Panoramen im selben Ausgabeordner gesammelt: Navigation zum vorherigen/nächsten Panorama und Vorschaubilder aller interaktiven Panoramen.</source>
        <translation>&lt;img src=&quot;:/info/BMPS/png/info.png&quot; align=&quot;left&quot;/&gt;&lt;b&gt;Adds thumbnails and navigation for changing between different panoramas.&lt;/b&gt;&lt;br/&gt;On saving, all other panoramas in the same output folder are collected: navigation to the previous/next panorama and thumbnails of all interactive panoramas.</translation>
    </message>
    <message>
        <source>Galerie hinzufügen</source>
        <translation>Add a gallery</translation>
    </message>
    <message>
        <source>Schaltflächen für Navigation</source>
        <translation>Navigation buttons</translation>
    </message>
    <message>
        <source>Darstellung:</source>
        <translation>Display:</translation>
    </message>
    <message>
        <source>Am linken und rechten Bildrand</source>
        <translation>At the left and right picture edge</translation>
    </message>
    <message>
        <source>In Bedienelemente integriert</source>
        <translation>Integrated in the controls</translation>
    </message>
    <message>
        <source>Keine</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Miniaturansichten</source>
        <translation>Thumbnails</translation>
    </message>
    <message>
        <source>Beim Start eingeblendet</source>
        <translation>Shown at start</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <source>Oberhalb der Bedienelemente</source>
        <translation>Above the controls</translation>
    </message>
    <message>
        <source>Unterhalb der Bedienelemente</source>
        <translation>Below the controls</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Allgemein</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Titel:</source>
        <translation>Title:</translation>
    </message>
    <message>
        <source>Eigenes Logo:</source>
        <translation>Own logo:</translation>
    </message>
    <message>
        <source>URL:</source>
        <translation>URL:</translation>
    </message>
    <message>
        <source>Hotspots sichtbar</source>
        <translation>Hotspots visible</translation>
    </message>
    <message>
        <source>Textfarbe:</source>
        <translation>Text colour:</translation>
    </message>
    <message>
        <source>Schattenfarbe:</source>
        <translation>Shadow colour:</translation>
    </message>
    <message>
        <source>Kurzbeschreibung für Galerie:</source>
        <translation>Short description for the gallery:</translation>
    </message>
    <message>
        <source>Erweitert</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>WebGL-Warnung zeigen</source>
        <translation>Show a WebGL warning</translation>
    </message>
    <message>
        <source>WebGL-Warnung zeigen, wenn der Browser WebGL für lokale Panoramen blockiert oder nicht unterstützt</source>
        <translation>Show a WebGL warning when the browser blocks WebGL for local panoramas or does not support it</translation>
    </message>
    <message>
        <source>Endung Parameterdateien:</source>
        <translation>Extension of the parameter files:</translation>
    </message>
    <message>
        <source>Sollte der Webserver *.json-Dateien nicht akzeptieren, kann die Dateiendung der Parameterdateien auf *.js geändert werden.</source>
        <translation>If the web server does not accept *.json files, the extension of the parameter files can be changed to *.js.</translation>
    </message>
    <message>
        <source>*.json</source>
        <translation>*.json</translation>
    </message>
    <message>
        <source>*.js</source>
        <translation>*.js</translation>
    </message>
</context>
<context>
    <name>InfoPage</name>
    <message>
        <source>Info-Box</source>
        <translation>Info Box</translation>
    </message>
    <message>
        <source>&lt;img src=&quot;:/info/BMPS/png/info.png&quot; align=&quot;left&quot;/&gt;&lt;b&gt;Optionales Feld für Hinweise, Informationen mit Text und Bildern.&lt;/b&gt;&lt;br/&gt;Die Info-Box wird beim Start oder über die Schaltfläche &apos;Information&apos; eingeblendet und kann beliebigen HTML-formatierten Inhalt inkl. Bildern enthalten.</source>
        <translation>&lt;img src=&quot;:/info/BMPS/png/info.png&quot; align=&quot;left&quot;/&gt;&lt;b&gt;Optional field for notes, information with text and pictures.&lt;/b&gt;&lt;br/&gt;The info box opens at the start or on the &apos;Information&apos; button and can hold any HTML-formatted content, pictures included.</translation>
    </message>
    <message>
        <source>&lt;/&gt; HTML:</source>
        <translation>&lt;/&gt; HTML:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Eine Info-Box kann neben reinem Text auch beliebigen HTML-formatierten Inhalt inkl. Bildern enthalten.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Besides plain text, an info box can hold any HTML-formatted content, pictures included.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Für alle Panoramen einer virtuellen Tour verwenden</source>
        <translation>Use for all panoramas of a virtual tour</translation>
    </message>
    <message>
        <source>Ist das Panorama Teil einer virtuellen Tour, dann diese Information in allen Panoramen der Tour einblenden.</source>
        <translation>If the panorama is part of a virtual tour, show this information in all panoramas of the tour.</translation>
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
    <name>MapPage</name>
    <message>
        <source>Karte</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>&lt;img src=&quot;:/info/BMPS/png/info.png&quot; align=&quot;left&quot;/&gt;&lt;b&gt;Fügt eine Karte hinzu.&lt;/b&gt;&lt;br/&gt;Beim Speichern werden alle anderen Panoramen im selben Ausgabeordner mit Standortdaten gesammelt und ihre Positionen in der Karte angezeigt.</source>
        <translation>&lt;img src=&quot;:/info/BMPS/png/info.png&quot; align=&quot;left&quot;/&gt;&lt;b&gt;Adds a map.&lt;/b&gt;&lt;br/&gt;On saving, all other panoramas in the same output folder with location data are collected and their positions shown on the map.</translation>
    </message>
    <message>
        <source>Standort in Karte anzeigen</source>
        <translation>Show the location on a map</translation>
    </message>
    <message>
        <source>Google Maps API-Key:</source>
        <translation>Google Maps API key:</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <source>Oberhalb der Bedienelemente</source>
        <translation>Above the controls</translation>
    </message>
    <message>
        <source>Unterhalb der Bedienelemente</source>
        <translation>Below the controls</translation>
    </message>
    <message>
        <source>Karten-Typ:</source>
        <translation>Map type:</translation>
    </message>
    <message>
        <source>Hybrid (Satellit+Straßenkarte) | Google Maps</source>
        <translation>Hybrid (satellite+road map) | Google Maps</translation>
    </message>
    <message>
        <source>Satellit | Google Maps</source>
        <translation>Satellite | Google Maps</translation>
    </message>
    <message>
        <source>Straßenkarte | Google Maps</source>
        <translation>Road map | Google Maps</translation>
    </message>
    <message>
        <source>Karte | OpenStreetMap</source>
        <translation>Map | OpenStreetMap</translation>
    </message>
    <message>
        <source>Zoom beim Start (0-20):</source>
        <translation>Zoom at start (0-20):</translation>
    </message>
    <message>
        <source>Beim Start eingeblendet</source>
        <translation>Shown at start</translation>
    </message>
    <message>
        <source>Zeige Radar zum aktuellen Panorama, falls Orientierung vorhanden</source>
        <translation>Show a radar for the current panorama if its orientation is known</translation>
    </message>
    <message>
        <source>Zeige &quot;Zoom&quot;-Bedienelemente</source>
        <translation>Show the &quot;zoom&quot; controls</translation>
    </message>
    <message>
        <source>Zeige &quot;Karten-Typ&quot;-Bedienelemente</source>
        <translation>Show the &quot;map type&quot; controls</translation>
    </message>
    <message>
        <source>Karte bei Klick auf ein Ziel ausblenden</source>
        <translation>Hide the map when a target is clicked</translation>
    </message>
    <message>
        <source>Standort und Orientierung bearbeiten...</source>
        <translation>Edit location and orientation...</translation>
    </message>
</context>
<context>
    <name>OrientationPage</name>
    <message>
        <source>Kompass/Radar</source>
        <translation>Compass/Radar</translation>
    </message>
    <message>
        <source>Orientierung ausgeben</source>
        <translation>Output the orientation</translation>
    </message>
    <message>
        <source>Darstellung:</source>
        <translation>Display:</translation>
    </message>
    <message>
        <source>Kompass, mittel</source>
        <translation>Compass, medium</translation>
    </message>
    <message>
        <source>Kompass, groß</source>
        <translation>Compass, large</translation>
    </message>
    <message>
        <source>Kompass, klein</source>
        <translation>Compass, small</translation>
    </message>
    <message>
        <source>Kompass, kompakt</source>
        <translation>Compass, compact</translation>
    </message>
    <message>
        <source>Kompass (drehende Scheibe), mittel</source>
        <translation>Compass (rotating dial), medium</translation>
    </message>
    <message>
        <source>Kompass (drehende Scheibe), groß</source>
        <translation>Compass (rotating dial), large</translation>
    </message>
    <message>
        <source>Kompass (drehende Scheibe), klein</source>
        <translation>Compass (rotating dial), small</translation>
    </message>
    <message>
        <source>Radar, mittel</source>
        <translation>Radar, medium</translation>
    </message>
    <message>
        <source>Radar, groß</source>
        <translation>Radar, large</translation>
    </message>
    <message>
        <source>Radar, klein</source>
        <translation>Radar, small</translation>
    </message>
    <message>
        <source>Kompass in Bedienelemente integriert</source>
        <translation>Compass integrated in the controls</translation>
    </message>
    <message>
        <source>Radar in Bedienelemente integriert</source>
        <translation>Radar integrated in the controls</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <source>In Ecke links-oben</source>
        <translation>In the top-left corner</translation>
    </message>
    <message>
        <source>Am linken Bildrand</source>
        <translation>At the left picture edge</translation>
    </message>
    <message>
        <source>Am rechten Bildrand</source>
        <translation>At the right picture edge</translation>
    </message>
    <message>
        <source>Bei Klick nach Norden ausrichten</source>
        <translation>Turn to north on a click</translation>
    </message>
    <message>
        <source>Standort und Orientierung bearbeiten...</source>
        <translation>Edit location and orientation...</translation>
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
    <name>ToolbarPage</name>
    <message>
        <source>Bedienelemente</source>
        <translation>Controls</translation>
    </message>
    <message>
        <source>Bedienelemente integrieren</source>
        <translation>Integrate the controls</translation>
    </message>
    <message>
        <source>Beim Start ausgeblendet</source>
        <translation>Hidden at start</translation>
    </message>
    <message>
        <source>Design:</source>
        <translation>Design:</translation>
    </message>
    <message>
        <source>Typ 1</source>
        <translation>Type 1</translation>
    </message>
    <message>
        <source>Typ 2</source>
        <translation>Type 2</translation>
    </message>
    <message>
        <source>Typ 3</source>
        <translation>Type 3</translation>
    </message>
    <message>
        <source>Typ 4</source>
        <translation>Type 4</translation>
    </message>
    <message>
        <source>Typ 5</source>
        <translation>Type 5</translation>
    </message>
    <message>
        <source>Typ 6</source>
        <translation>Type 6</translation>
    </message>
    <message>
        <source>Typ 7</source>
        <translation>Type 7</translation>
    </message>
    <message>
        <source>Typ 8</source>
        <translation>Type 8</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <source>zentriert</source>
        <translation>centred</translation>
    </message>
    <message>
        <source>gesamte Breite</source>
        <translation>full width</translation>
    </message>
    <message>
        <source>links</source>
        <translation>left</translation>
    </message>
    <message>
        <source>rechts</source>
        <translation>right</translation>
    </message>
    <message>
        <source>Schaltflächen</source>
        <translation>Buttons</translation>
    </message>
    <message>
        <source>&apos;Play&apos;-Schaltfläche anzeigen</source>
        <translation>Show the &apos;Play&apos; button</translation>
    </message>
    <message>
        <source>&apos;Information&apos; beim Start einblenden</source>
        <translation>Show &apos;Information&apos; at start</translation>
    </message>
    <message>
        <source>Vergrößern/Verkleinern anzeigen</source>
        <translation>Show zoom in/out</translation>
    </message>
    <message>
        <source>Richtungspfeile anzeigen</source>
        <translation>Show the direction arrows</translation>
    </message>
    <message>
        <source>Vollbild-Schaltfläche anzeigen</source>
        <translation>Show the full-screen button</translation>
    </message>
    <message>
        <source>&apos;Audio an/aus&apos;-Schaltfläche anzeigen</source>
        <translation>Show the &apos;Audio on/off&apos; button</translation>
    </message>
    <message>
        <source>&apos;Hotspots an/aus&apos;-Schaltfläche anzeigen</source>
        <translation>Show the &apos;Hotspots on/off&apos; button</translation>
    </message>
    <message>
        <source>&apos;Gyroskop an/aus&apos;-Schaltfläche anzeigen</source>
        <translation>Show the &apos;Gyroscope on/off&apos; button</translation>
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
<context>
    <name>VrPage</name>
    <message>
        <source>VR-Modus (beta)</source>
        <translation>VR Mode (beta)</translation>
    </message>
    <message>
        <source>&lt;img src=&quot;:/info/BMPS/png/info.png&quot; align=&quot;left&quot;/&gt;&lt;b&gt;Fügt einen &amp;quot;Virtual Reality&amp;quot;-Modus für 360x180°-Panoramen hinzu.&lt;/b&gt;&lt;br/&gt;Der VR-Modus ist für Mobilgeräte und VR-Headsets gedacht. Unterstützt der Browser WebVR, wird es verwendet, sonst eine Split-Screen-Emulation.</source>
        <translation>&lt;img src=&quot;:/info/BMPS/png/info.png&quot; align=&quot;left&quot;/&gt;&lt;b&gt;Adds a &amp;quot;Virtual Reality&amp;quot; mode for 360x180° panoramas.&lt;/b&gt;&lt;br/&gt;The VR mode serves mobile devices and VR headsets. Where the browser supports WebVR it is used, otherwise a split-screen emulation.</translation>
    </message>
    <message>
        <source>VR-Modus hinzufügen</source>
        <translation>Add a VR mode</translation>
    </message>
    <message>
        <source>Gamepad/Controller nutzen, falls vorhanden</source>
        <translation>Use a gamepad/controller if present</translation>
    </message>
    <message>
        <source>VR-Darstellung:</source>
        <translation>VR display:</translation>
    </message>
    <message>
        <source>Automatisch | WebVR oder Split-Screen</source>
        <translation>Automatic | WebVR or split screen</translation>
    </message>
    <message>
        <source>Nur Split-Screen | WebVR nicht verwenden</source>
        <translation>Split screen only | do not use WebVR</translation>
    </message>
</context>
</TS>
