// The map ("map" of the toolbar): a marker for every panorama of the tour with a position, the
// shown one in the active marker picture, a radar cone at it turned with the view, and a click on
// a marker showing its panorama. "gmapstype" "osm" draws OpenStreetMap with Leaflet; the other
// types load the Google Maps JavaScript API with the file's key. Without network, or when Google
// refuses the key, the map area says so.
import { latLng, map as leafletMap, tileLayer, marker as leafletMarker, icon as leafletIcon, divIcon } from 'leaflet';
import leafletCss from 'leaflet/dist/leaflet.css';
import { Panel } from './panel.js';
import { run } from './scripting.js';
import { maybeText, text } from './texts.js';

const OSM_TILES = 'https://tile.openstreetmap.org/{z}/{x}/{y}.png';
const OSM_ATTRIBUTION = '&copy; <a href="https://www.openstreetmap.org/copyright" target="_blank" rel="noopener">OpenStreetMap</a>';
const OSM_MAX_ZOOM = 19;
const GOOGLE_SCRIPT = 'https://maps.googleapis.com/maps/api/js';
const GOOGLE_READY = '__vantoGoogleMapsReady';

function installLeafletStyles() {
  if (document.getElementById('vanto-leaflet-styles')) return;
  const style = document.createElement('style');
  style.id = 'vanto-leaflet-styles';
  style.textContent = leafletCss;
  document.head.appendChild(style);
}

// The marker pictures are written as Google Maps icon texts ("{ url: ..., scaledSize: new
// google.maps.Size(30,48), anchor: new google.maps.Point(15, 42) }"); with Leaflet they are read
// with stand-ins for the two Google types.
const STAND_IN = {
  maps: {
    Size: function Size(width, height) { this.width = width; this.height = height; },
    Point: function Point(x, y) { this.x = x; this.y = y; },
  },
};
function markerPicture(source, google) {
  if (typeof source !== 'string' || !source.trim()) return null;
  try {
    // eslint-disable-next-line no-new-func
    return new Function('google', `return (${source});`)(google || STAND_IN);
  } catch (e) {
    console.error('vantoViewer: a marker picture of the map cannot be read:', e);
    return null;
  }
}

let googleLoad = null;
// Loads the Google Maps JavaScript API once per page.
function loadGoogle(key) {
  if (window.google && window.google.maps && window.google.maps.Map) return Promise.resolve(window.google);
  if (!googleLoad) {
    googleLoad = new Promise((resolve, reject) => {
      window[GOOGLE_READY] = () => resolve(window.google);
      const script = document.createElement('script');
      script.src = `${GOOGLE_SCRIPT}?key=${encodeURIComponent(key || '')}&callback=${GOOGLE_READY}`;
      script.async = true;
      script.onerror = () => { googleLoad = null; script.remove(); reject(new Error('unreachable')); };
      document.head.appendChild(script);
    });
  }
  return googleLoad;
}

export class MapPanel extends Panel {
  constructor(viewer, members) {
    super(viewer, members, 'map');
    this.node.setAttribute('aria-label', maybeText('mapbutton'));
    const content = document.createElement('div');
    content.className = 'vanto-mapcontent';
    content.style.cssText = `${this.contentstyle || 'position:absolute;left:0;right:0;top:0;bottom:0;'};background:#ddd;`;
    this.content = content;
    this.node.appendChild(content);
    this.backend = null;
    this.heading = null;
    const onmarker = this.onmarkerclick;
    if (typeof onmarker === 'string') this.onmarkerclick = (...args) => run(onmarker, this, 'map', 'onmarkerclick', args);
    viewer.frameListeners.push(() => this.followView());
  }

  // The panoramas with a position: the gallery's, or the one shown when there is no gallery.
  places() {
    const valid = (l) => l && Number.isFinite(Number(l.lat)) && Number.isFinite(Number(l.lng)) && l.lat !== '' && l.lng !== '';
    const gallery = this.viewer.gallery();
    const list = gallery ? gallery.items.map((entry, index) => ({ index, location: entry.location, title: entry.text || entry.href }))
      .filter((p) => valid(p.location)) : [];
    const here = this.viewer.location();
    if (!list.length && valid(here)) list.push({ index: -1, location: here, title: '' });
    return list;
  }

  // The place of the panorama shown.
  currentPlace() {
    const gallery = this.viewer.gallery();
    const at = gallery ? gallery.current() : -1;
    return this.places().find((p) => p.index === at) || null;
  }

  markerClicked(index) {
    const gallery = this.viewer.gallery();
    if (gallery && index >= 0) gallery.set(index);
    if (typeof this.onmarkerclick === 'function') this.onmarkerclick();
  }

  resized() {
    if (!this.backend && this.visible && this.height > 0) this.start();
    if (this.backend && this.backend.resize) this.backend.resize();
    // The radar is drawn with the next frame of the view.
    if (this.radar && this.visible) this.viewer.requestFrame();
  }

  center() {
    this.place();
    if (this.backend) this.backend.center();
  }

  sceneChanged() {
    this.heading = null;
    if (this.backend) this.backend.select();
  }

  start() {
    const places = this.places();
    if (!places.length) return;
    if (this.gmapstype === 'osm') {
      this.backend = new LeafletBackend(this, places);
      return;
    }
    this.backend = { select() {}, center() {}, follow() {} };
    loadGoogle(this.apikey).then((google) => {
      this.backend = new GoogleBackend(this, places, google);
    }, () => this.showMessage(text('mapOffline', 'Google Maps')));
    window.gm_authFailure = () => this.showMessage(text('mapRefused'));
  }

  showMessage(message) {
    if (!this.message) {
      this.message = document.createElement('div');
      this.message.className = 'vanto-mapmessage';
      this.message.setAttribute('role', 'alert');
      this.message.style.cssText = 'position:absolute;left:0;right:0;top:0;bottom:0;display:flex;align-items:center;'
        + 'justify-content:center;padding:12px;box-sizing:border-box;text-align:center;z-index:1100;'
        + 'background:rgba(40,40,40,0.85);color:#fff;font:14px/1.4 Arial,Helvetica,sans-serif;';
      this.content.appendChild(this.message);
    }
    this.message.textContent = message;
  }

  hideMessage() {
    if (this.message) this.message.remove();
    this.message = null;
  }

  // The radar turns with the view: its cone points where the view looks, as wide as the view.
  followView() {
    if (!this.radar || !this.backend || !this.visible || this.viewer.flat || !this.viewer.frame3d) return;
    const place = this.currentPlace();
    const north = place && Number(place.location.north);
    if (!place || !Number.isFinite(north)) return;
    const view = this.viewer.getView();
    const heading = view.pan - (this.viewer.frame3d.left + north);
    if (this.heading && Math.abs(this.heading[0] - heading) < 0.2 && Math.abs(this.heading[1] - view.hfov) < 0.2) return;
    this.heading = [heading, view.hfov];
    if (!this.radarCanvas) this.radarCanvas = document.createElement('canvas');
    drawRadar(this.radarCanvas, this.radar, heading, view.hfov);
    this.backend.follow(place, this.radarCanvas);
  }
}

function drawRadar(canvas, radar, heading, fov) {
  const w = Number(radar.width) || 256;
  canvas.width = w;
  canvas.height = w;
  canvas.className = 'vanto-radar';
  canvas.style.cssText = `width:${w}px;height:${w}px;pointer-events:none;`;
  const c = canvas.getContext('2d');
  c.clearRect(0, 0, w, w);
  c.fillStyle = 'rgba(255,255,255,0.4)';
  c.strokeStyle = '#ccc';
  if (radar.radarcontext) run(radar.radarcontext, radar, 'map', 'radarcontext', [c]);
  const r = ((Number(radar.radius) || 1) * w) / 2;
  const rad = Math.PI / 180;
  // North is up; the heading turns clockwise.
  c.beginPath();
  c.moveTo(w / 2, w / 2);
  c.arc(w / 2, w / 2, r, (heading - fov / 2 - 90) * rad, (heading + fov / 2 - 90) * rad);
  c.closePath();
  c.fill();
  c.stroke();
}

class LeafletBackend {
  constructor(panel, places) {
    installLeafletStyles();
    this.panel = panel;
    const map = leafletMap(panel.content, { zoomControl: !!panel.zoomcontrols, attributionControl: true });
    this.map = map;
    let loaded = 0;
    const layer = tileLayer(OSM_TILES, { maxZoom: OSM_MAX_ZOOM, attribution: OSM_ATTRIBUTION }).addTo(map);
    layer.on('tileload', () => { loaded++; panel.hideMessage(); });
    layer.on('tileerror', () => { if (!loaded) panel.showMessage(text('mapOffline', 'OpenStreetMap')); });
    const picture = (source) => {
      const p = markerPicture(source);
      if (!p || !p.url) return null;
      const size = p.scaledSize ? [p.scaledSize.width, p.scaledSize.height] : undefined;
      const anchor = p.anchor ? [p.anchor.x, p.anchor.y] : undefined;
      return leafletIcon({ iconUrl: new URL(p.url, panel.viewer.galleryBase).href, iconSize: size, iconAnchor: anchor, className: 'vanto-marker' });
    };
    this.icon = picture(panel.gmarker);
    this.activeIcon = picture(panel.gmarkeractive) || this.icon;
    this.markers = places.map((p) => {
      const options = { title: p.title, alt: p.title, keyboard: true, riseOnHover: true };
      if (this.icon) options.icon = this.icon;
      const m = leafletMarker(latLng(Number(p.location.lat), Number(p.location.lng)), options).addTo(map);
      m.on('click', () => panel.markerClicked(p.index));
      m.place = p;
      return m;
    });
    this.radar = null;
    this.center();
    this.select();
  }

  select() {
    const at = this.panel.currentPlace();
    for (const m of this.markers) {
      const active = at && m.place.index === at.index;
      if (this.icon) m.setIcon(active ? this.activeIcon : this.icon);
      m.setZIndexOffset(active ? 1000 : 0);
      m.getElement()?.classList.toggle('vanto-marker-active', !!active);
    }
  }

  center() {
    const at = this.panel.currentPlace() || this.markers[0].place;
    const zoom = Math.min(OSM_MAX_ZOOM, Math.max(0, Number(this.panel.zoom) || 0));
    this.map.setView(latLng(Number(at.location.lat), Number(at.location.lng)), zoom, { animate: false });
  }

  resize() { this.map.invalidateSize({ animate: false }); }

  follow(place, canvas) {
    const where = latLng(Number(place.location.lat), Number(place.location.lng));
    if (!this.radar) {
      const w = canvas.width;
      this.radar = leafletMarker(where, {
        icon: divIcon({ html: canvas, className: '', iconSize: [w, w], iconAnchor: [w / 2, w / 2] }),
        interactive: false, keyboard: false, zIndexOffset: -1000,
      }).addTo(this.map);
    } else this.radar.setLatLng(where);
  }
}

class GoogleBackend {
  constructor(panel, places, google) {
    const maps = google.maps;
    this.panel = panel;
    this.maps = maps;
    const at = panel.currentPlace() || places[0];
    this.map = new maps.Map(panel.content, {
      center: { lat: Number(at.location.lat), lng: Number(at.location.lng) },
      zoom: Number(panel.zoom) || 0,
      mapTypeId: panel.gmapstype || 'roadmap',
      zoomControl: !!panel.zoomcontrols,
      mapTypeControl: !!panel.typecontrols,
      streetViewControl: false,
      fullscreenControl: false,
    });
    this.icon = markerPicture(panel.gmarker, google);
    this.activeIcon = markerPicture(panel.gmarkeractive, google) || this.icon;
    this.markers = places.map((p) => {
      const m = new maps.Marker({ position: { lat: Number(p.location.lat), lng: Number(p.location.lng) }, map: this.map, title: p.title });
      m.addListener('click', () => panel.markerClicked(p.index));
      m.place = p;
      return m;
    });
    this.select();
  }

  select() {
    const at = this.panel.currentPlace();
    for (const m of this.markers) {
      const active = at && m.place.index === at.index;
      const picture = active ? this.activeIcon : this.icon;
      if (picture) m.setIcon({ ...picture, url: new URL(picture.url, this.panel.viewer.galleryBase).href });
      m.setZIndex(active ? 1000 : 0);
    }
  }

  center() {
    const at = this.panel.currentPlace();
    if (at) this.map.panTo({ lat: Number(at.location.lat), lng: Number(at.location.lng) });
  }

  follow(place, canvas) {
    const maps = this.maps;
    this.radarAt = new maps.LatLng(Number(place.location.lat), Number(place.location.lng));
    if (this.radar) { this.radar.draw(); return; }
    const self = this;
    const overlay = new maps.OverlayView();
    overlay.onAdd = function onAdd() {
      canvas.style.position = 'absolute';
      this.getPanes().overlayLayer.appendChild(canvas);
    };
    overlay.draw = function draw() {
      const projection = this.getProjection();
      if (!projection) return;
      const p = projection.fromLatLngToDivPixel(self.radarAt);
      canvas.style.left = `${p.x - canvas.width / 2}px`;
      canvas.style.top = `${p.y - canvas.height / 2}px`;
    };
    overlay.onRemove = () => canvas.remove();
    overlay.setMap(this.map);
    this.radar = overlay;
  }
}
