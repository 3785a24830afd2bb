// zeltool: look into scene files without writing a host.
#include "frame/ZelHost.h"
#include "zel.h"

#include <cstdio>
#include <cstring>

using namespace KeZel;

namespace {

int Version() {
    std::printf("libzel library 3.0.2, interface %d, extended interface %d\n", zel_get_version(),
                zel_get_extended_version());
    return 0;
}

int Formats() {
    for (const CZelFileType* const* t = zel_get_file_type_list(); *t; ++t)
        std::printf("%-5s %.4s %.4s  %s\n", (*t)->mExtension, (*t)->mType, (*t)->mCreator,
                    (*t)->mDescription);
    return 0;
}

int Usage(FILE* out) {
    std::fprintf(out, "usage: zeltool COMMAND [ARGS]\n"
                      "  version   library and interface versions\n"
                      "  formats   the file types the library reads\n");
    return out == stdout ? 0 : 2;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) return Usage(stderr);
    const char* command = argv[1];
    if (!std::strcmp(command, "--help") || !std::strcmp(command, "help")) return Usage(stdout);
    if (!std::strcmp(command, "version")) return Version();
    if (!std::strcmp(command, "formats")) return Formats();
    std::fprintf(stderr, "zeltool: unknown command '%s'\n", command);
    return Usage(stderr);
}
