// Reading the device's orientation where the browser asks the user first (iOS): the question may
// only be put from a tap, so the viewer puts it at the first tap on the viewer, or when a tap
// switches the gyroscope on before that. Elsewhere nothing is asked.
let answer = null;

export function orientationNeedsPermission() {
  return typeof DeviceOrientationEvent !== 'undefined' && typeof DeviceOrientationEvent.requestPermission === 'function';
}

// Resolves whether orientation events may flow; a refusal is final, a failed question (not from a
// tap) is put again next time.
export function askOrientationPermission() {
  if (!orientationNeedsPermission()) return Promise.resolve(true);
  if (!answer) {
    answer = Promise.resolve()
      .then(() => DeviceOrientationEvent.requestPermission())
      .then((state) => state === 'granted', () => { answer = null; return false; });
  }
  return answer;
}

export function askAtFirstTap(root) {
  if (!orientationNeedsPermission()) return;
  const tap = () => {
    for (const type of ['click', 'touchend']) root.removeEventListener(type, tap, true);
    askOrientationPermission();
  };
  for (const type of ['click', 'touchend']) root.addEventListener(type, tap, true);
}
