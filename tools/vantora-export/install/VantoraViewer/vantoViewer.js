/*
 * PLACEHOLDER - this is not the Vantora viewer.
 *
 * The real viewer script is not built yet. The command-line host's placeholder installation
 * folder carries this file so that exports can run end to end; a page exported with it shows the
 * message below instead of the panorama.
 */
var vantoViewer = {
  insert: function (elementId, paramsFile, options) {
    var element = document.getElementById(elementId);
    if (!element)
      return;
    element.style.fontFamily = "sans-serif";
    element.style.color = "#444";
    element.textContent = "Vantora viewer not built yet: this is a placeholder for " + paramsFile +
      ". Export again with the installation folder of a real viewer to see the panorama.";
  }
};
