// The keyboard beyond the buttons: Escape leaves VR mode, or else closes the message box shown.
// (The context menu closes itself on Escape.) Only while the focus is in this viewer or nowhere,
// so that two viewers in one page answer for themselves.
export function closeOnEscape(viewer) {
  window.addEventListener('keydown', (e) => {
    if (e.key !== 'Escape' || e.defaultPrevented) return;
    const focus = document.activeElement;
    if (focus && focus !== document.body && !viewer.root.contains(focus)) return;
    if (viewer.isVRModeEnabled()) viewer.exitVRMode();
    else if (viewer.currentMBId) viewer.action('hideMessage');
    else return;
    e.preventDefault();
  });
}
