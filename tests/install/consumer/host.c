/* The smallest host: loads the installed library, hands it a panorama without tiles and a target
 * path, runs one export without a dialog and says where the page is. Usage: consumer OUT.html
 * SETTINGS_FOLDER/ */
#include <vantora/host.h>
#include <vantora/version.h>

#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { BUFFER_CHARS = 32768 };

static char16_t pathBuffer[BUFFER_CHARS];
static char16_t outputPath[BUFFER_CHARS];
static char16_t installFolder[BUFFER_CHARS];
static char16_t settingsFolder[BUFFER_CHARS];

/* Paths of this test are ASCII: one UTF-16 unit per byte. */
static void widen(char16_t *to, const char *from)
{
    size_t i = 0;
    for (; from[i] && i + 1 < BUFFER_CHARS; ++i)
        to[i] = (char16_t)(unsigned char)from[i];
    to[i] = 0;
}

static void narrow(char *to, const char16_t *from, size_t room)
{
    size_t i = 0;
    for (; from[i] && i + 1 < room; ++i)
        to[i] = (char)from[i];
    to[i] = 0;
}

int main(int argc, char **argv)
{
    if (argc != 3) {
        fprintf(stderr, "usage: consumer OUT.html SETTINGS_FOLDER/\n");
        return 2;
    }
    void *module = dlopen(MODULE, RTLD_NOW | RTLD_LOCAL);
    if (!module) {
        fprintf(stderr, "consumer: %s\n", dlerror());
        return 1;
    }
    ExportAppletFn exportApplet;
    *(void **)&exportApplet = dlsym(module, "export_applet");
    if (!exportApplet) {
        fprintf(stderr, "consumer: no export_applet in %s\n", MODULE);
        return 1;
    }

    static HostContext host; /* zero: no stored view, no dialog services, no tiles */
    widen(pathBuffer, argv[1]);
    widen(installFolder, VIEWER_DIR);
    widen(settingsFolder, argv[2]);
    host.documentId = 1;
    host.imageWidth = 4096;
    host.imageHeight = 2048;
    host.upperEdgeTilt = -90.0;
    host.lowerEdgeTilt = 90.0;
    host.startPan = 0.0;
    host.endPan = 360.0;
    host.pathBuffer = pathBuffer;
    host.outputPath = outputPath;
    host.installFolder = installFolder;
    host.settingsFolder = settingsFolder;
    host.pageWidth = 800;
    host.pageHeight = 600;
    host.linearVertical = 1;
    host.jpegQuality = 80;
    host.nonInteractive = 1;

    uint64_t word = 0;
    exportApplet(VANTORA_RESTORE_SETTINGS, &host, NULL);
    exportApplet(VANTORA_PREPARE, &host, &word);
    word = 0;
    exportApplet(VANTORA_WRITE, &host, &word);
    if (word != VANTORA_WRITE_DONE) {
        fprintf(stderr, "consumer: command 1 answered %llu\n", (unsigned long long)word);
        return 1;
    }
    char page[BUFFER_CHARS];
    narrow(page, outputPath, sizeof page);
    printf("library %s, page: %s\n", VANTORA_EXPORT_VERSION, page);
    return 0;
}
