/* The public header compiled as strict C11, and its layout checked against the documented offsets
 * and sizes, typed here a second time: the header pins offsets, not the width of each member. */
#include <vantora/host.h>

#include <stddef.h>
#include <stdio.h>

/* The declared entry point and the type hosts call it through agree (nothing is linked). */
_Static_assert(_Generic(&export_applet, ExportAppletFn : 1, default : 0),
    "export_applet and ExportAppletFn differ");

#define FIELD(type, member, at, bytes)                                                             \
    {                                                                                              \
#type "." #member, offsetof(type, member), sizeof(((type *)0)->member), at, bytes          \
    }

static const struct
{
    const char *name;
    size_t offset, size, expectedOffset, expectedSize;
} rows[] = {
    {"sizeof(HostContext)", 0, sizeof(HostContext), 0, 472},
    FIELD(HostContext, documentId, 0, 8),
    FIELD(HostContext, hideFovButton, 8, 4),
    FIELD(HostContext, imageWidth, 12, 4),
    FIELD(HostContext, imageHeight, 16, 4),
    FIELD(HostContext, start, 32, 8),
    FIELD(HostContext, close, 40, 8),
    FIELD(HostContext, upperEdgeTilt, 48, 8),
    FIELD(HostContext, lowerEdgeTilt, 56, 8),
    FIELD(HostContext, startPan, 72, 8),
    FIELD(HostContext, endPan, 80, 8),
    FIELD(HostContext, gyroCapable, 112, 4),
    FIELD(HostContext, parentWindow, 168, 8),
    FIELD(HostContext, pathBuffer, 184, 8),
    FIELD(HostContext, hotspots, 208, 8),
    FIELD(HostContext, outputPath, 216, 8),
    FIELD(HostContext, installFolder, 232, 8),
    FIELD(HostContext, previewCookie, 264, 8),
    FIELD(HostContext, settingsFolder, 280, 8),
    FIELD(HostContext, preview, 288, 8),
    FIELD(HostContext, viewPan, 328, 8),
    FIELD(HostContext, viewTilt, 336, 8),
    FIELD(HostContext, viewHfov, 344, 8),
    FIELD(HostContext, viewMinHfov, 352, 8),
    FIELD(HostContext, viewMaxHfov, 360, 8),
    FIELD(HostContext, writeTiles, 368, 8),
    FIELD(HostContext, exportResource, 376, 8),
    FIELD(HostContext, uiScale, 384, 8),
    FIELD(HostContext, dialogHook, 392, 8),
    FIELD(HostContext, fillLocation, 400, 8),
    FIELD(HostContext, queryLocation, 408, 8),
    FIELD(HostContext, editLocation, 416, 8),
    FIELD(HostContext, locationCookie, 424, 8),
    FIELD(HostContext, flatImage, 432, 4),
    FIELD(HostContext, pageWidth, 436, 4),
    FIELD(HostContext, pageHeight, 440, 4),
    FIELD(HostContext, fitToPage, 444, 4),
    FIELD(HostContext, linearVertical, 448, 4),
    FIELD(HostContext, jpegQuality, 456, 4),
    FIELD(HostContext, nonInteractive, 464, 4),
    {"sizeof(ViewState)", 0, sizeof(ViewState), 0, 48},
    FIELD(ViewState, size, 0, 4),
    FIELD(ViewState, zero, 4, 4),
    FIELD(ViewState, hfov, 8, 8),
    FIELD(ViewState, maxhfov, 16, 8),
    FIELD(ViewState, minhfov, 24, 8),
    FIELD(ViewState, pan, 32, 8),
    FIELD(ViewState, tilt, 40, 8),
};

int main(void)
{
    int failures = 0;
    for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i) {
        if (rows[i].offset != rows[i].expectedOffset || rows[i].size != rows[i].expectedSize) {
            fprintf(stderr, "%s: offset %zu size %zu, expected offset %zu size %zu\n", rows[i].name,
                rows[i].offset, rows[i].size, rows[i].expectedOffset, rows[i].expectedSize);
            ++failures;
        }
    }
    /* The command and result numbers hosts call with and read back. */
    if (!(VANTORA_PREPARE == 0 && VANTORA_WRITE == 1 && VANTORA_SAVE_SETTINGS == 2
            && VANTORA_FREE_SETTINGS == 3 && VANTORA_SAVE_VIEW == 4 && VANTORA_FREE_VIEW == 5
            && VANTORA_RESTORE_SETTINGS == 6 && VANTORA_RESTORE_VIEW == 7 && VANTORA_WRITE_DONE == 0
            && VANTORA_WRITE_PAGE_NOT_WRITABLE == 1 && VANTORA_WRITE_FAILED == 2
            && VANTORA_WRITE_NO_VIEWER == 5)) {
        fprintf(stderr, "command or result numbers differ\n");
        ++failures;
    }
    printf("host header: %d failures\n", failures);
    return failures == 0 ? 0 : 1;
}
