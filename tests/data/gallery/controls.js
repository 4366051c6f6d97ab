VantoraViewerParams = {
"vantoraViewer": {
"events": {
    "id": "mainEvents",
    "onload": "function() { viewer.version = \"1\"; }"
}
}
}