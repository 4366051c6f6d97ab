/* Fault injection for the crash-consistency test, loaded with LD_PRELOAD into vantora-export.
 *
 * Counts the writes, renames and links that touch the folder FAULT_DIR (an absolute path) and
 * makes the FAULT_AT-th of them fail (a write with ENOSPC, a rename or link with EIO), or, with
 * FAULT_KILL set, kills the process at that point. FAULT_AT=0 fails nothing; the number of
 * operations seen is written to the file FAULT_COUNT when the process ends. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <limits.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

static long seen;

static int inFolder(const char *path)
{
    const char *folder = getenv("FAULT_DIR");
    char absolute[PATH_MAX];
    if (!folder || !path)
        return 0;
    if (path[0] != '/') {
        if (!getcwd(absolute, sizeof absolute))
            return 0;
        strncat(absolute, "/", sizeof absolute - strlen(absolute) - 1);
        strncat(absolute, path, sizeof absolute - strlen(absolute) - 1);
        path = absolute;
    }
    const size_t length = strlen(folder);
    return strncmp(path, folder, length) == 0 && (path[length] == '/' || path[length] == '\0');
}

static int fdInFolder(int fd)
{
    char link[64], target[PATH_MAX];
    snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    const ssize_t length = readlink(link, target, sizeof target - 1);
    if (length <= 0)
        return 0;
    target[length] = '\0';
    return inFolder(target);
}

/* True when this operation is the one to fail. */
static int strike(void)
{
    const char *at = getenv("FAULT_AT");
    ++seen;
    if (!at || atol(at) != seen)
        return 0;
    if (getenv("FAULT_KILL"))
        kill(getpid(), SIGKILL);
    return 1;
}

__attribute__((destructor)) static void report(void)
{
    const char *file = getenv("FAULT_COUNT");
    FILE *out = file ? fopen(file, "w") : NULL;
    if (out) {
        fprintf(out, "%ld\n", seen);
        fclose(out);
    }
}

/* Interposed on the C library: these must stay visible whatever the build hides by default. */
#define SHIM __attribute__((visibility("default")))
#define NEXT(name) ((__typeof__(&name))dlsym(RTLD_NEXT, #name))

SHIM ssize_t write(int fd, const void *data, size_t size)
{
    if (fd > 2 && fdInFolder(fd) && strike()) {
        errno = ENOSPC;
        return -1;
    }
    return NEXT(write)(fd, data, size);
}

SHIM int rename(const char *from, const char *to)
{
    if ((inFolder(from) || inFolder(to)) && strike()) {
        errno = EIO;
        return -1;
    }
    return NEXT(rename)(from, to);
}

SHIM int link(const char *from, const char *to)
{
    if ((inFolder(from) || inFolder(to)) && strike()) {
        errno = EIO;
        return -1;
    }
    return NEXT(link)(from, to);
}
