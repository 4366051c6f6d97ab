// The tile pyramid of the node's "image" member: levels smallest first, tiles of "tilesize" pixels
// whose last column and row are as wide and high as the picture leaves them.
import { text } from './texts.js';

export class Pyramid {
  constructor(image, baseUrl) {
    this.image = image;
    this.baseUrl = baseUrl;
    this.tileSize = image.tilesize || 512;
    this.levels = (image.levels || []).map((l) => ({
      width: l.width,
      height: l.height,
      columns: l.columns || Math.ceil(l.width / (image.tilesize || 512)),
      rows: l.rows || Math.ceil(l.height / (image.tilesize || 512)),
    }));
    this.flat = image.projection === 'flat';
    this.cache = new Map();
    this.onload = () => {};
  }

  get top() {
    return this.levels.length - 1;
  }

  url(level, column, row) {
    const path = this.image.url.replace('{level}', level).replace('{column}', column).replace('{row}', row);
    return new URL(path, this.baseUrl).href;
  }

  // The tile's pixel rectangle in its level.
  rect(level, column, row) {
    const l = this.levels[level];
    const x = column * this.tileSize;
    const y = row * this.tileSize;
    return { x, y, w: Math.min(this.tileSize, l.width - x), h: Math.min(this.tileSize, l.height - y) };
  }

  // The tile record, loading it on first request. state: 'loading', 'ready' or 'failed'.
  tile(level, column, row) {
    const key = `${level}/${column}/${row}`;
    let tile = this.cache.get(key);
    if (!tile) {
      const img = new Image();
      tile = { key, level, column, row, img, state: 'loading', rect: this.rect(level, column, row) };
      img.onload = () => { tile.state = 'ready'; this.onload(tile); };
      img.onerror = () => {
        tile.state = 'failed';
        console.warn('vantoViewer:', text('tileFailed', img.src));
        this.onload(tile);
      };
      img.src = this.url(level, column, row);
      this.cache.set(key, tile);
    }
    return tile;
  }

  // Forgets the least recently drawn tiles beyond `keep`, never those of level 0 or of the current
  // frame; `forget` lets the renderer free what it holds for a tile.
  evict(frame, keep, forget) {
    if (this.cache.size <= keep) return;
    const old = [...this.cache.values()]
      .filter((t) => t.level > 0 && t.used !== frame && t.state !== 'loading')
      .sort((a, b) => a.used - b.used);
    for (const tile of old.slice(0, this.cache.size - keep)) {
      this.cache.delete(tile.key);
      forget(tile);
    }
  }

  // The smallest level that gives at least `needed` pixels across the whole picture.
  levelFor(needed) {
    for (let i = 0; i < this.levels.length; i++) {
      if (this.levels[i].width >= needed * 0.95) return i;
    }
    return this.top;
  }
}
