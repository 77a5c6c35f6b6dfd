#include "bare.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

struct Header {
    char tag[4];
    int count;
    int offset;
};

struct Entry {
    int position;
    int size;
    char name[8];
};

static int CountMaps(FILE* file) {
    struct Header header;
    if (fread(&header, sizeof header, 1, file) != 1 || memcmp(header.tag + 1, "WAD", 3) != 0 ||
        fseek(file, header.offset, SEEK_SET) != 0) {
        return -1;
    }
    struct Entry* entries = malloc(sizeof *entries * (size_t)header.count);
    char(*names)[8] = malloc(sizeof *names * ((size_t)header.count / 11 + 1));
    int maps = 0;
    if (entries && names && fread(entries, sizeof *entries, (size_t)header.count, file) > 0) {
        for (int lump = 0; lump + 1 < header.count; ++lump) {
            if (strncmp(entries[lump + 1].name, "THINGS", 8) == 0) {
                memcpy(names[maps++], entries[lump].name, 8);
                lump += 10;
            }
        }
    }
    free(names);
    free(entries);
    return maps;
}

int BareMapCount(const char* path) {
    FILE* file = fopen(path, "rb");
    if (!file) {
        return -1;
    }
    const int maps = CountMaps(file);
    fclose(file);
    return maps;
}
