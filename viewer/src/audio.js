// The sound of a panorama ("gAudio" for the whole tour, "lAudio" for one node). A browser that
// refuses to start a sound before the user has done anything gets it started on the first gesture.
import { besidePage } from './elements.js';

export class Sound {
  constructor(viewer, members) {
    Object.assign(this, members);
    this.viewer = viewer;
    const audio = new Audio(besidePage(members.src, viewer.baseUrl));
    audio.loop = !!members.loop;
    audio.preload = 'auto';
    this.audio = audio;
    audio.addEventListener('play', () => viewer.fire('onstartaudio', this.id));
    audio.addEventListener('pause', () => viewer.fire('onstopaudio', this.id));
    audio.addEventListener('ended', () => viewer.fire('onstopaudio', this.id));
    if (members.autoplay) this.play();
  }

  play() {
    const started = this.audio.play();
    if (started && started.catch) {
      started.catch(() => {
        const retry = () => {
          for (const type of ['pointerdown', 'keydown', 'touchend']) window.removeEventListener(type, retry, true);
          this.audio.play().catch(() => {});
        };
        for (const type of ['pointerdown', 'keydown', 'touchend']) window.addEventListener(type, retry, true);
      });
    }
  }

  pause() { this.audio.pause(); }
  isPlaying() { return !this.audio.paused; }
  toggle() { if (this.isPlaying()) this.pause(); else this.play(); }
  setVisible() {}
  destroy() { this.audio.pause(); this.audio.src = ''; }
}
