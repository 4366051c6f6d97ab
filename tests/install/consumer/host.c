/* The smallest host: loads the installed library, hands it a panorama and a target path, runs one
 * export without a dialog and says where the page is. Its tile writer writes a one-pixel grey
 * panorama, a single tile that is also the thumbnail. Usage: consumer OUT.html SETTINGS_FOLDER/ */
#include <vantora/host.h>
#include <vantora/version.h>

#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>

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

/* A 1 x 1 grey baseline JPEG. */
static const unsigned char GREY_PIXEL[] = {0xff, 0xd8, 0xff, 0xdb, 0x00, 0x43, 0x00, 0x06, 0x04,
    0x05, 0x06, 0x05, 0x04, 0x06, 0x06, 0x05, 0x06, 0x07, 0x07, 0x06, 0x08, 0x0a, 0x10, 0x0a, 0x0a,
    0x09, 0x09, 0x0a, 0x14, 0x0e, 0x0f, 0x0c, 0x10, 0x17, 0x14, 0x18, 0x18, 0x17, 0x14, 0x16, 0x16,
    0x1a, 0x1d, 0x25, 0x1f, 0x1a, 0x1b, 0x23, 0x1c, 0x16, 0x16, 0x20, 0x2c, 0x20, 0x23, 0x26, 0x27,
    0x29, 0x2a, 0x29, 0x19, 0x1f, 0x2d, 0x30, 0x2d, 0x28, 0x30, 0x25, 0x28, 0x29, 0x28, 0xff, 0xc0,
    0x00, 0x0b, 0x08, 0x00, 0x01, 0x00, 0x01, 0x01, 0x01, 0x11, 0x00, 0xff, 0xc4, 0x00, 0x14, 0x00,
    0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x00, 0xff, 0xc4, 0x00, 0x14, 0x10, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xff, 0xda, 0x00, 0x08, 0x01, 0x01, 0x00, 0x00, 0x3f,
    0x00, 0x3f, 0xff, 0xd9};

static int writeFile(const char *path)
{
    FILE *file = fopen(path, "wb");
    if (!file)
        return 0;
    const int written = fwrite(GREY_PIXEL, sizeof GREY_PIXEL, 1, file) == 1;
    return fclose(file) == 0 && written;
}

static uint32_t writeTiles(HostContext *host, HostTileRequest *request)
{
    (void)host;
    char folder[BUFFER_CHARS], id[256], path[BUFFER_CHARS + 512], image[2048];
    narrow(folder, request->outputFolder, sizeof folder);
    narrow(id, request->identifier, sizeof id);
    snprintf(path, sizeof path, "%s%s_tiles", folder, id);
    mkdir(path, 0755);
    snprintf(path, sizeof path, "%s%s_tiles/0", folder, id);
    mkdir(path, 0755);
    snprintf(path, sizeof path, "%s%s_tiles/0/0_0.jpg", folder, id);
    if (!writeFile(path))
        return 0;
    snprintf(path, sizeof path, "%s%s_tiles/%s_thumb.jpg", folder, id, id);
    if (!writeFile(path))
        return 0;
    snprintf(image, sizeof image,
        "{\"type\":\"tiles\",\"projection\":\"equirectangular\",\"width\":1,\"height\":1,"
        "\"tilesize\":512,\"url\":\"%s_tiles/{level}/{column}_{row}.jpg\","
        "\"thumbnail\":\"%s_tiles/%s_thumb.jpg\","
        "\"levels\":[{\"width\":1,\"height\":1,\"columns\":1,\"rows\":1}],"
        "\"hextent\":360,\"vextent\":180}",
        id, id, id);
    return request->setNodeMember(request->node, "image", image) ? 1 : 0;
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

    static HostContext host; /* zero: no stored view, no dialog services */
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
    host.writeTiles = writeTiles;
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
