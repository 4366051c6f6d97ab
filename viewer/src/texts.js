// The viewer's own user-visible texts, in German and English, chosen by the browser's language.

const TEXTS = {
  en: {
    missing: 'The panorama could not be loaded: the file "%s" is missing or cannot be read.',
    malformed: 'The panorama could not be loaded: the file "%s" is not a valid viewer parameter file (%s).',
    noElement: 'The viewer area "%s" does not exist in this page.',
    noImage: 'The parameter file "%s" describes no picture.',
    tileFailed: 'A picture tile could not be loaded: %s',
    noWebgl: 'This panorama is shown without WebGL, in reduced quality and without the little-planet view. ' +
      'Pages opened from disk cannot use WebGL; from a web server the panorama is shown in full quality.',
    close: 'Close',
    hideTbButton: 'Hide the controls', showTbButton: 'Show the controls', infobutton: 'Information',
    hotspotsButton: 'Hotspots on or off', type1: 'Turn left', type2: 'Turn right', type3: 'Look up',
    type4: 'Look down', type5: 'Zoom in', type6: 'Zoom out', playbutton: 'Autoplay on or off',
    vrButton: 'VR view', gyrobutton: 'Gyroscope on or off', audiobutton: 'Sound on or off',
    fullscreenButton: 'Full screen', gallerybutton: 'Gallery', mapbutton: 'Map',
    galleryBtnPrev: 'Previous panorama', galleryBtnNext: 'Next panorama', navLeftButton: 'Previous panorama',
    navRightButton: 'Next panorama', leftStereoButton: 'Leave the VR view', rightStereoButton: 'Leave the VR view',
    button: 'Button', compass: 'Compass', radar: 'Radar', turnNorth: 'turn the view to north',
    mapOffline: 'The map cannot be shown: there is no connection to the map server (%s).',
    mapRefused: 'The map cannot be shown: Google Maps refused the key of this page.',
  },
  de: {
    missing: 'Das Panorama konnte nicht geladen werden: Die Datei „%s“ fehlt oder ist nicht lesbar.',
    malformed: 'Das Panorama konnte nicht geladen werden: Die Datei „%s“ ist keine gültige Parameterdatei des Viewers (%s).',
    noElement: 'Den Viewer-Bereich „%s“ gibt es in dieser Seite nicht.',
    noImage: 'Die Parameterdatei „%s“ beschreibt kein Bild.',
    tileFailed: 'Eine Bildkachel konnte nicht geladen werden: %s',
    noWebgl: 'Dieses Panorama wird ohne WebGL gezeigt, in geringerer Qualität und ohne Little-Planet-Ansicht. ' +
      'Von der Festplatte geöffnete Seiten können WebGL nicht nutzen; über einen Webserver wird das Panorama in voller Qualität gezeigt.',
    close: 'Schließen',
    hideTbButton: 'Bedienelemente ausblenden', showTbButton: 'Bedienelemente einblenden', infobutton: 'Information',
    hotspotsButton: 'Hotspots ein oder aus', type1: 'Nach links drehen', type2: 'Nach rechts drehen', type3: 'Nach oben schauen',
    type4: 'Nach unten schauen', type5: 'Vergrößern', type6: 'Verkleinern', playbutton: 'Automatische Drehung ein oder aus',
    vrButton: 'VR-Ansicht', gyrobutton: 'Gyroskop ein oder aus', audiobutton: 'Ton ein oder aus',
    fullscreenButton: 'Vollbild', gallerybutton: 'Galerie', mapbutton: 'Karte',
    galleryBtnPrev: 'Vorheriges Panorama', galleryBtnNext: 'Nächstes Panorama', navLeftButton: 'Vorheriges Panorama',
    navRightButton: 'Nächstes Panorama', leftStereoButton: 'VR-Ansicht verlassen', rightStereoButton: 'VR-Ansicht verlassen',
    button: 'Schaltfläche', compass: 'Kompass', radar: 'Radar', turnNorth: 'Ansicht nach Norden drehen',
    mapOffline: 'Die Karte kann nicht angezeigt werden: Es besteht keine Verbindung zum Kartenserver (%s).',
    mapRefused: 'Die Karte kann nicht angezeigt werden: Google Maps hat den Schlüssel dieser Seite abgelehnt.',
  },
};

export function language() {
  const lang = (typeof navigator !== 'undefined' && (navigator.language || '')) || '';
  return lang.toLowerCase().startsWith('de') ? 'de' : 'en';
}

// Fills the "%s" places of a text in order.
export function text(key, ...args) {
  let i = 0;
  return TEXTS[language()][key].replace(/%s/g, () => String(args[i++]));
}

// The viewer's own text for `key`, or undefined when it has none.
export function maybeText(key) {
  return TEXTS[language()][key];
}
