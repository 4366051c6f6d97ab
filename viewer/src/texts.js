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
