/* The contract between a host application and the Vantora web export: the record the host passes
 * on every call, the view block, the hotspot record, the host operations and the one entry point.
 *
 * Everything here is plain C (C11 or later, or C++) so that a host built with another compiler,
 * another language or another version of the toolkit can fill it. Layout: little-endian, natural
 * alignment, 8-byte pointers. Every offset the library relies on is pinned by a static assertion
 * below; the bytes between the pinned members belong to the host and are never read or written.
 *
 * Members marked "ours" in the offset column are not fixed by the original host contract; this
 * header defines them, and a host that wants maps, compasses, equirectangular hotspot positions or
 * image tiles fills them as documented here. A zero or null in any of them is always safe.
 *
 * Strings: UTF-16 (char16_t, native byte order) for paths and for the buffers of the host;
 * narrow strings in the hotspot record are UTF-8. Paths use the platform's separator (a backslash
 * on Windows, a slash elsewhere); the library accepts both on input. Folders end in a separator.
 */
#ifndef VANTORA_HOST_H
#define VANTORA_HOST_H

#include <stddef.h>
#include <stdint.h>

/* The header reads like the contract's offset table; keep the formatter out of its columns. */
/* clang-format off */

#ifdef __cplusplus
#define VANTORA_STATIC_ASSERT(cond, msg) static_assert(cond, msg)
extern "C" {
#else
#include <uchar.h> /* char16_t in C11 */
#define VANTORA_STATIC_ASSERT(cond, msg) _Static_assert(cond, msg)
#endif

/* Only the library marks its entry point for export; hosts load it at run time. */
#if !defined(VANTORA_BUILDING_LIBRARY)
#define VANTORA_EXPORT
#elif defined(_WIN32)
#define VANTORA_EXPORT __declspec(dllexport)
#else
#define VANTORA_EXPORT __attribute__((visibility("default")))
#endif

typedef struct HostContext HostContext;
typedef struct HostHotspot HostHotspot;
typedef struct HostHotspotList HostHotspotList;
typedef struct HostTileRequest HostTileRequest;

/* A JSON object that the library is building (the panorama node, the location object). Opaque to
 * the host: it adds members only through the setter handed to it next to the object. */
typedef struct VantoraJsonObject VantoraJsonObject;

/* Sets member `key` (UTF-8) of `object` to the JSON value written in `jsonValue` (UTF-8 text of
 * one complete JSON value: an object, array, string, number, true, false or null). An existing
 * member of that name is replaced. Returns 1 when the value was taken, 0 when `key` is empty or
 * `jsonValue` is not exactly one well-formed JSON value (the object is then left unchanged). */
typedef int (*VantoraJsonSetFn)(VantoraJsonObject *object, const char *key, const char *jsonValue);

/* ---- Host operations ------------------------------------------------------------------------ */

/* Offset 32. Called once before any file of an export is written. The library passes a null
 * argument; what the host does here (typically: show a busy cursor) is its own business. */
typedef void (*HostStartFn)(void *reserved);

/* Offset 40. Called once after all files of an export were written, with the record itself. */
typedef void (*HostCloseFn)(HostContext *host);

/* Offset 288. Field-of-view preview of the host: pan, tilt and hfov are in/out. Returns non-zero
 * when the user confirmed a view. `cookie` is the value at offset 264, passed through. */
typedef int32_t (*HostPreviewFn)(HostContext *host, double *pan, double *tilt, double *hfov,
                                 int32_t pageWidth, int32_t pageHeight, double minhfov,
                                 double maxhfov, uint64_t cookie);

/* Offset 368, ours in detail. Writes the image tiles and the thumbnail into the image-data folder
 * (output folder + page base name + "_tiles", thumbnail base name + "_thumb.jpg" inside it),
 * honouring the JPEG quality at offset 456, and may add members to the panorama node (among them
 * "image", which describes the tiles to the viewer). Returns non-zero on success: the export
 * succeeds only when it does. Called at most once per export. A host may instead leave the
 * finished folder under the image-data folder's name + ".vantora-new": the library then moves it
 * into place together with its own files once the whole export has succeeded (so an interrupted
 * or failed export never mixes old and new tiles) and removes it when the export fails. */
typedef uint32_t (*HostWriteTilesFn)(HostContext *host, HostTileRequest *request);

/* Offset 376. Writes the host's compiled-in resource `resourcePath` (it starts with ':') to the
 * file `targetPath`. The result is not inspected: a missing bitmap is the viewer's problem. During
 * an export `targetPath` is a working name beside the final one (final name + ".vantora-new"); the
 * library moves the file in with the export's other files. */
typedef uint32_t (*HostExportResourceFn)(const char16_t *resourcePath, const char16_t *targetPath);

/* Offset 384. The host's user-interface scale factor for `widget` (a QWidget pointer). */
typedef double (*HostUiScaleFn)(void *widget);

/* Offset 392. Called for every new dialog (a QWidget pointer) of the library, with 0 and, for the
 * main export dialog only, the record itself (null otherwise). */
typedef void (*HostDialogHookFn)(void *dialog, uint64_t zero, HostContext *host);

/* Offset 400, ours. Fills the panorama's location object through `setMember`. The library asks
 * for it only when a map or an orientation element is exported. `forMap` is non-zero when a map is
 * wanted, `forOrientation` when the panorama's orientation is needed (compass, radar). Suggested
 * members: "lat" and "lng" (degrees, doubles), "north" (pan angle of north, degrees, double). */
typedef void (*HostFillLocationFn)(HostContext *host, VantoraJsonObject *location,
                                   VantoraJsonSetFn setMember, uint32_t forMap,
                                   uint32_t forOrientation);

/* Offset 408, ours. Tells the settings dialog whether the current panorama has orientation data
 * and whether it has location data (each non-zero when present). `cookie`: offset 424. */
typedef void (*HostQueryLocationFn)(uint64_t cookie, uint32_t *hasOrientation,
                                    uint32_t *hasLocation);

/* Offset 416. Opens the host's editor for location and orientation over `dialog` (a QWidget).
 * `cookie`: the value at offset 424, passed through. */
typedef void (*HostEditLocationFn)(uint64_t cookie, void *dialog);

/* ---- The hotspot record and list (ours: layout of the original host not available) ---------- */

struct HostHotspot {
    const char *name;           /*   0 tooltip text, UTF-8; null or "" for none */
    const char *linkUrl;        /*   8 link address of a link hotspot (action 0) */
    const char *linkTarget;     /*  16 link target of a link hotspot, e.g. "_self" */
    const char *infoText;       /*  24 text of an info hotspot (action 1), HTML allowed */
    int32_t kind;               /*  32 0..6 hotspot shapes, 7..13 lens flare types 0..6, 14 animated bitmap */
    int32_t action;             /*  36 0 link, 1 info text, anything else: no action */
    double position[2];         /*  40 x, y: flat mode pan/tilt in normalised units; spherical: fractions of the image */
    uintptr_t hasInternalBitmap;/*  56 non-zero: the host draws it, no bitmap file is written */
    const char16_t *bitmapPath; /*  64 bitmap file; a leading ':' names a resource of the host */
    int32_t embedded;           /*  72 non-zero: embedded in the panorama, else floating */
    float embeddedWidth;        /*  76 width factor of an embedded bitmap */
    float rotation;             /*  80 rotation of an embedded bitmap, degrees */
    int32_t transparency;       /*  84 percent of transparency at rest */
    int32_t hoverTransparency;  /*  88 percent of transparency under the mouse */
    int32_t transitionFlags;    /*  92 bit 0 blend, bit 1 zoom in */
    int32_t frameWidth;         /*  96 animation strip: frame width in pixels */
    int32_t frameHeight;        /* 100 frame height in pixels */
    int32_t frameCount;         /* 104 number of frames */
    int32_t iterations;         /* 108 repeat count, 0 or less: endless */
    int32_t frameOffset;        /* 112 first frame */
    uint32_t reserved116;       /* 116 zero */
    double duration;            /* 120 animation duration, seconds */
    double delay;               /* 128 start delay, seconds */
    uint8_t animateOnMouseOver; /* 136 non-zero: animate only under the mouse */
    uint8_t reserved137[7];     /* 137 zero */
};

/* The host's hotspot list: pointers to records from `begin` up to, not including, `end`. Null
 * entries are allowed and skipped. */
struct HostHotspotList {
    HostHotspot *const *begin; /* 0 */
    HostHotspot *const *end;   /* 8 */
};

/* ---- The tile request (ours), handed to the tile writer at offset 368 ----------------------- */

struct HostTileRequest {
    uint32_t size;                   /*   0 sizeof(HostTileRequest) as the library knows it */
    uint32_t flatMode;               /*   4 non-zero: flat 2D zoom image; 0: spherical panorama */
    const char16_t *outputFolder;    /*   8 folder of the export, ending in a separator */
    char16_t *identifier;            /*  16 in/out: the panorama's identifier (parameter file base name) */
    uint32_t identifierCapacity;     /*  24 room in `identifier`, char16_t units with the terminator */
    uint32_t scalePercent;           /*  28 output scale, 5..100 */
    uint32_t outputWidth;            /*  32 pixels of the scaled output */
    uint32_t outputHeight;           /*  36 */
    double startPan;                 /*  40 horizontal extent, degrees (offsets 72, 80) */
    double endPan;                   /*  48 */
    double upperEdgeTilt;            /*  56 vertical extent, degrees downward positive (offsets 48, 56) */
    double lowerEdgeTilt;            /*  64 */
    double pan;                      /*  72 start view, degrees */
    double tilt;                     /*  80 */
    double hfov;                     /*  88 */
    double minhfov;                  /*  96 */
    double maxhfov;                  /* 104 */
    VantoraJsonObject *node;         /* 112 the panorama node; add "image" here */
    VantoraJsonSetFn setNodeMember;  /* 120 the only way to change `node` */
};

/* ---- The record the host passes on every call ----------------------------------------------- */

struct HostContext {
    uint64_t documentId;               /*   0 in    identity of the current document (keeps the output scale) */
    uint32_t hideFovButton;            /*   8 in    non-zero: the main dialog hides its field-of-view button */
    uint32_t imageWidth;               /*  12 in    panorama width, pixels */
    uint32_t imageHeight;              /*  16 in    panorama height, pixels */
    uint8_t hostOwned20[12];           /*  20       the host's */
    HostStartFn start;                 /*  32 call  start of file writing */
    HostCloseFn close;                 /*  40 call  end of file writing */
    double upperEdgeTilt;              /*  48 in    vertical extent, lower bound: the image's upper edge (degrees, downward positive) */
    double lowerEdgeTilt;              /*  56 in    vertical extent, upper bound: the image's lower edge */
    uint8_t hostOwned64[8];            /*  64       the host's */
    double startPan;                   /*  72 in    horizontal extent, lower bound, degrees */
    double endPan;                     /*  80 in    horizontal extent, upper bound, degrees */
    uint8_t hostOwned88[24];           /*  88       the host's */
    uint32_t gyroCapable;              /* 112 in    non-zero: the page may use the device's motion sensor */
    uint8_t hostOwned116[52];          /* 116       the host's */
    void *parentWindow;                /* 168 in    QWidget parent of every dialog; null: no boxes */
    uint8_t hostOwned176[8];           /* 176       the host's */
    char16_t *pathBuffer;              /* 184 in/out target path (non-interactive); emptied by command 0, page path after command 1 */
    uint8_t hostOwned192[16];          /* 192       the host's */
    const HostHotspotList *hotspots;   /* 208 in    the hotspot list, may be null */
    char16_t *outputPath;              /* 216 out   chosen target path (command 0), page path (command 1); may be null */
    uint8_t hostOwned224[8];           /* 224       the host's */
    const char16_t *installFolder;     /* 232 in    installation folder, ending in a separator */
    uint8_t hostOwned240[24];          /* 240       the host's */
    uint64_t previewCookie;            /* 264 in    passed through to the preview operation */
    uint8_t hostOwned272[8];           /* 272       the host's */
    const char16_t *settingsFolder;    /* 280 in    settings folder, ending in a separator */
    HostPreviewFn preview;             /* 288 call  field-of-view preview */
    uint8_t hostOwned296[32];          /* 296       the host's */
    double viewPan;                    /* 328 in/out stored view: pan */
    double viewTilt;                   /* 336 in/out tilt */
    double viewHfov;                   /* 344 in/out horizontal field of view; 0 or less: no stored view */
    double viewMinHfov;                /* 352 in/out smallest field of view */
    double viewMaxHfov;                /* 360 in/out largest field of view */
    HostWriteTilesFn writeTiles;       /* 368 call  tile writer, may be null */
    HostExportResourceFn exportResource; /* 376 call resource exporter, may be null */
    HostUiScaleFn uiScale;             /* 384 call  UI scale factor, may be null */
    HostDialogHookFn dialogHook;       /* 392 call  new-dialog hook, may be null */
    HostFillLocationFn fillLocation;   /* 400 call  ours: location filler, may be null */
    HostQueryLocationFn queryLocation; /* 408 call  ours: location query, may be null */
    HostEditLocationFn editLocation;   /* 416 call  location editor, may be null */
    uint64_t locationCookie;           /* 424 in    passed through to the location services */
    uint32_t flatImage;                /* 432 in    non-zero: not a panorama, only the flat zoom image is offered */
    int32_t pageWidth;                 /* 436 in/out viewer area width in the page, pixels */
    int32_t pageHeight;                /* 440 in/out viewer area height, pixels */
    uint32_t fitToPage;                /* 444 in/out non-zero: the viewer fills the browser window */
    uint32_t linearVertical;           /* 448 in    ours: non-zero for an equirectangular image (tilt linear in y); 0: cylindrical */
    uint8_t hostOwned452[4];           /* 452       the host's */
    uint32_t jpegQuality;              /* 456 out   JPEG quality of the tiles: 70, 80 or 90 */
    uint8_t hostOwned460[4];           /* 460       the host's */
    uint32_t nonInteractive;           /* 464 in    non-zero: no dialog, no box; the path comes in at 184 */
    uint8_t hostOwned468[4];           /* 468       the host's */
};

/* ---- The view block of commands 4, 5 and 7 --------------------------------------------------- */

typedef struct ViewState {
    uint32_t size;   /*  0 always 48 */
    uint32_t zero;   /*  4 always 0 */
    double hfov;     /*  8 */
    double maxhfov;  /* 16 largest before smallest, on purpose */
    double minhfov;  /* 24 */
    double pan;      /* 32 */
    double tilt;     /* 40 */
} ViewState;

/* ---- The entry point ------------------------------------------------------------------------- */

/* Commands of export_applet. Results travel through *inout; the return value is always 0.
 *
 * The settings block of commands 2, 3 and 6 is the library's own format (little-endian: u32 total
 * size, i32 version, then the settings); the host keeps its bytes unchanged with its document and
 * hands them back by address in command 6. Command 2 allocates a new block every time and does not
 * free the one it gave before; command 3 frees the latest. Command 6 reads nothing beyond the
 * block's own total size: a block shorter than its version needs, or one whose size word or inner
 * lengths do not fit together, is ignored like a block of an unknown version (the settings keep
 * their defaults and the next command 0 starts from them). Only the first four bytes, the size
 * word itself, are read before it is known. */
enum VantoraCommand {
    VANTORA_PREPARE = 0,         /* *inout = 0 */
    VANTORA_WRITE = 1,           /* *inout = VantoraWriteResult */
    VANTORA_SAVE_SETTINGS = 2,   /* *inout = address of a settings block, or 0 */
    VANTORA_FREE_SETTINGS = 3,
    VANTORA_SAVE_VIEW = 4,       /* *inout = address of a ViewState */
    VANTORA_FREE_VIEW = 5,
    VANTORA_RESTORE_SETTINGS = 6,/* in: *inout = block address; inout may be null */
    VANTORA_RESTORE_VIEW = 7     /* in: *inout = ViewState address; inout may be null */
};

enum VantoraWriteResult {
    VANTORA_WRITE_DONE = 0,            /* written, or nothing was prepared */
    VANTORA_WRITE_PAGE_NOT_WRITABLE = 1,
    VANTORA_WRITE_FAILED = 2,          /* parameter file or tiles failed */
    VANTORA_WRITE_NO_VIEWER = 5        /* installFolder + VantoraViewer/vantoViewer.js missing */
};

VANTORA_EXPORT uint64_t export_applet(uint32_t command, HostContext *host, uint64_t *inout);

/* Hosts resolve the symbol at run time and call it through this type. */
typedef uint64_t (*ExportAppletFn)(uint32_t command, HostContext *host, uint64_t *inout);

/* ---- Layout pins ----------------------------------------------------------------------------- */

#define VANTORA_ASSERT_OFFSET(type, member, offset) \
    VANTORA_STATIC_ASSERT(offsetof(type, member) == (offset), #type "." #member " moved")

VANTORA_STATIC_ASSERT(sizeof(void *) == 8, "the host contract is 64-bit");

VANTORA_ASSERT_OFFSET(HostContext, documentId, 0);
VANTORA_ASSERT_OFFSET(HostContext, hideFovButton, 8);
VANTORA_ASSERT_OFFSET(HostContext, imageWidth, 12);
VANTORA_ASSERT_OFFSET(HostContext, imageHeight, 16);
VANTORA_ASSERT_OFFSET(HostContext, start, 32);
VANTORA_ASSERT_OFFSET(HostContext, close, 40);
VANTORA_ASSERT_OFFSET(HostContext, upperEdgeTilt, 48);
VANTORA_ASSERT_OFFSET(HostContext, lowerEdgeTilt, 56);
VANTORA_ASSERT_OFFSET(HostContext, startPan, 72);
VANTORA_ASSERT_OFFSET(HostContext, endPan, 80);
VANTORA_ASSERT_OFFSET(HostContext, gyroCapable, 112);
VANTORA_ASSERT_OFFSET(HostContext, parentWindow, 168);
VANTORA_ASSERT_OFFSET(HostContext, pathBuffer, 184);
VANTORA_ASSERT_OFFSET(HostContext, hotspots, 208);
VANTORA_ASSERT_OFFSET(HostContext, outputPath, 216);
VANTORA_ASSERT_OFFSET(HostContext, installFolder, 232);
VANTORA_ASSERT_OFFSET(HostContext, previewCookie, 264);
VANTORA_ASSERT_OFFSET(HostContext, settingsFolder, 280);
VANTORA_ASSERT_OFFSET(HostContext, preview, 288);
VANTORA_ASSERT_OFFSET(HostContext, viewPan, 328);
VANTORA_ASSERT_OFFSET(HostContext, viewTilt, 336);
VANTORA_ASSERT_OFFSET(HostContext, viewHfov, 344);
VANTORA_ASSERT_OFFSET(HostContext, viewMinHfov, 352);
VANTORA_ASSERT_OFFSET(HostContext, viewMaxHfov, 360);
VANTORA_ASSERT_OFFSET(HostContext, writeTiles, 368);
VANTORA_ASSERT_OFFSET(HostContext, exportResource, 376);
VANTORA_ASSERT_OFFSET(HostContext, uiScale, 384);
VANTORA_ASSERT_OFFSET(HostContext, dialogHook, 392);
VANTORA_ASSERT_OFFSET(HostContext, fillLocation, 400);
VANTORA_ASSERT_OFFSET(HostContext, queryLocation, 408);
VANTORA_ASSERT_OFFSET(HostContext, editLocation, 416);
VANTORA_ASSERT_OFFSET(HostContext, locationCookie, 424);
VANTORA_ASSERT_OFFSET(HostContext, flatImage, 432);
VANTORA_ASSERT_OFFSET(HostContext, pageWidth, 436);
VANTORA_ASSERT_OFFSET(HostContext, pageHeight, 440);
VANTORA_ASSERT_OFFSET(HostContext, fitToPage, 444);
VANTORA_ASSERT_OFFSET(HostContext, linearVertical, 448);
VANTORA_ASSERT_OFFSET(HostContext, jpegQuality, 456);
VANTORA_ASSERT_OFFSET(HostContext, nonInteractive, 464);
VANTORA_STATIC_ASSERT(sizeof(HostContext) == 472, "HostContext size");

VANTORA_ASSERT_OFFSET(ViewState, size, 0);
VANTORA_ASSERT_OFFSET(ViewState, zero, 4);
VANTORA_ASSERT_OFFSET(ViewState, hfov, 8);
VANTORA_ASSERT_OFFSET(ViewState, maxhfov, 16);
VANTORA_ASSERT_OFFSET(ViewState, minhfov, 24);
VANTORA_ASSERT_OFFSET(ViewState, pan, 32);
VANTORA_ASSERT_OFFSET(ViewState, tilt, 40);
VANTORA_STATIC_ASSERT(sizeof(ViewState) == 48, "ViewState size");

VANTORA_ASSERT_OFFSET(HostHotspot, name, 0);
VANTORA_ASSERT_OFFSET(HostHotspot, linkUrl, 8);
VANTORA_ASSERT_OFFSET(HostHotspot, linkTarget, 16);
VANTORA_ASSERT_OFFSET(HostHotspot, infoText, 24);
VANTORA_ASSERT_OFFSET(HostHotspot, kind, 32);
VANTORA_ASSERT_OFFSET(HostHotspot, action, 36);
VANTORA_ASSERT_OFFSET(HostHotspot, position, 40);
VANTORA_ASSERT_OFFSET(HostHotspot, hasInternalBitmap, 56);
VANTORA_ASSERT_OFFSET(HostHotspot, bitmapPath, 64);
VANTORA_ASSERT_OFFSET(HostHotspot, embedded, 72);
VANTORA_ASSERT_OFFSET(HostHotspot, embeddedWidth, 76);
VANTORA_ASSERT_OFFSET(HostHotspot, rotation, 80);
VANTORA_ASSERT_OFFSET(HostHotspot, transparency, 84);
VANTORA_ASSERT_OFFSET(HostHotspot, hoverTransparency, 88);
VANTORA_ASSERT_OFFSET(HostHotspot, transitionFlags, 92);
VANTORA_ASSERT_OFFSET(HostHotspot, frameWidth, 96);
VANTORA_ASSERT_OFFSET(HostHotspot, frameHeight, 100);
VANTORA_ASSERT_OFFSET(HostHotspot, frameCount, 104);
VANTORA_ASSERT_OFFSET(HostHotspot, iterations, 108);
VANTORA_ASSERT_OFFSET(HostHotspot, frameOffset, 112);
VANTORA_ASSERT_OFFSET(HostHotspot, duration, 120);
VANTORA_ASSERT_OFFSET(HostHotspot, delay, 128);
VANTORA_ASSERT_OFFSET(HostHotspot, animateOnMouseOver, 136);
VANTORA_STATIC_ASSERT(sizeof(HostHotspot) == 144, "HostHotspot size");

VANTORA_ASSERT_OFFSET(HostHotspotList, begin, 0);
VANTORA_ASSERT_OFFSET(HostHotspotList, end, 8);

VANTORA_ASSERT_OFFSET(HostTileRequest, size, 0);
VANTORA_ASSERT_OFFSET(HostTileRequest, flatMode, 4);
VANTORA_ASSERT_OFFSET(HostTileRequest, outputFolder, 8);
VANTORA_ASSERT_OFFSET(HostTileRequest, identifier, 16);
VANTORA_ASSERT_OFFSET(HostTileRequest, identifierCapacity, 24);
VANTORA_ASSERT_OFFSET(HostTileRequest, scalePercent, 28);
VANTORA_ASSERT_OFFSET(HostTileRequest, outputWidth, 32);
VANTORA_ASSERT_OFFSET(HostTileRequest, outputHeight, 36);
VANTORA_ASSERT_OFFSET(HostTileRequest, startPan, 40);
VANTORA_ASSERT_OFFSET(HostTileRequest, endPan, 48);
VANTORA_ASSERT_OFFSET(HostTileRequest, upperEdgeTilt, 56);
VANTORA_ASSERT_OFFSET(HostTileRequest, lowerEdgeTilt, 64);
VANTORA_ASSERT_OFFSET(HostTileRequest, pan, 72);
VANTORA_ASSERT_OFFSET(HostTileRequest, tilt, 80);
VANTORA_ASSERT_OFFSET(HostTileRequest, hfov, 88);
VANTORA_ASSERT_OFFSET(HostTileRequest, minhfov, 96);
VANTORA_ASSERT_OFFSET(HostTileRequest, maxhfov, 104);
VANTORA_ASSERT_OFFSET(HostTileRequest, node, 112);
VANTORA_ASSERT_OFFSET(HostTileRequest, setNodeMember, 120);
VANTORA_STATIC_ASSERT(sizeof(HostTileRequest) == 128, "HostTileRequest size");

#ifdef __cplusplus
}
#endif
/* clang-format on */
#endif /* VANTORA_HOST_H */
