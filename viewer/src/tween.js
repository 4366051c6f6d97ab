// Tweens: numeric properties of an object move to destination values over a time, after an
// optional delay, along a named transition curve. The handler texts start them through
// `this.tween({...})` on an action context or an element.
import { easing } from './easing.js';
import { run } from './scripting.js';

const RESERVED = new Set(['time', 'delay', 'transition', 'onInit', 'onUpdate', 'onComplete']);

export class Tweens {
  constructor(requestFrame) {
    this.active = [];
    this.requestFrame = requestFrame;
  }

  add(target, params, owner) {
    const tween = {
      target,
      params,
      owner,
      start: performance.now() + (Number(params.delay) || 0) * 1000,
      duration: Math.max(0, Number(params.time) || 0) * 1000,
      curve: easing(params.transition),
      from: null,
    };
    this.active.push(tween);
    this.requestFrame();
    return tween;
  }

  get running() {
    return this.active.length > 0;
  }

  // Advances every tween to `now`; returns whether any is still running.
  step(now) {
    for (const tween of this.active.slice()) {
      if (now < tween.start) continue;
      const p = tween.params;
      if (!tween.from) {
        if (p.onInit) run(p.onInit, tween.target, tween.owner, 'onInit', [tween.target, p]);
        tween.from = {};
        for (const key of Object.keys(p)) {
          if (!RESERVED.has(key) && typeof p[key] === 'number') tween.from[key] = Number(tween.target[key]) || 0;
        }
      }
      const t = tween.duration > 0 ? Math.min(1, (now - tween.start) / tween.duration) : 1;
      const k = tween.curve(t);
      for (const key of Object.keys(tween.from)) {
        tween.target[key] = tween.from[key] + (p[key] - tween.from[key]) * k;
      }
      if (p.onUpdate) run(p.onUpdate, tween.target, tween.owner, 'onUpdate', [tween.target]);
      if (t >= 1) {
        this.active.splice(this.active.indexOf(tween), 1);
        if (p.onComplete) run(p.onComplete, tween.target, tween.owner, 'onComplete', [tween.target]);
      }
    }
    return this.active.length > 0;
  }
}
