// A host in the true sense: it includes none of the library's headers. It declares its
// own copy of the feedback interface and of the C entry points, as a host built from the
// published tables would, links libzel.so and calls it by name and by slot.
#include <cstdio>
#include <cstring>
#include <initializer_list>

namespace host {

class Manager; // opaque: only the first slot, destroy, is called

class Feedback {
public:
    virtual void reportError(Manager* mgr, const char* text) = 0;
    virtual bool reportProgress(Manager* mgr, int current, int total) = 0;
};

struct FileType {
    const char* mExtension;
    char mType[4];
    char mCreator[4];
    int mRevision;
    const char* mDescription;
};

class ManagerSlots {
public:
    virtual void destroy() = 0;
};

class Recorder : public Feedback {
public:
    int calls = 0;
    bool nullManager = true;
    char last[256] = {0};
    void reportError(Manager* mgr, const char* text) override {
        ++calls;
        nullManager = nullManager && mgr == nullptr;
        std::snprintf(last, sizeof last, "%s", text);
    }
    bool reportProgress(Manager*, int, int) override { return true; }
};

} // namespace host

extern "C" {
host::Manager* zel_new_mgr(int version, host::Feedback* feedback, void* storage);
const host::FileType* const* zel_get_file_type_list();
int zel_get_version();
int zel_get_extended_version();
}

// The host's own copy of the interface meets the library's object: a call by slot, which
// is what a host does and what the type sanitizer would take for a mistake.
#if defined(__GNUC__)
__attribute__((no_sanitize("vptr")))
#endif
static void
Destroy(host::Manager* mgr) {
    reinterpret_cast<host::ManagerSlots*>(mgr)->destroy();
}

static int failures = 0;
#define CHECK(cond)                                                                                          \
    do {                                                                                                     \
        if (!(cond)) {                                                                                       \
            std::fprintf(stderr, "%s:%d: check failed: %s\n", __FILE__, __LINE__, #cond);                    \
            ++failures;                                                                                      \
        }                                                                                                    \
    } while (0)

int main() {
    CHECK(zel_get_version() == 21);
    CHECK(zel_get_extended_version() == 6);

    const host::FileType* const* types = zel_get_file_type_list();
    CHECK(types == zel_get_file_type_list());
    CHECK(types[0] && std::strcmp(types[0]->mExtension, ".zel") == 0);
    CHECK(types[1] && std::strcmp(types[1]->mDescription, "Vantorium Object (.zof)") == 0);
    CHECK(types[2] && std::memcmp(types[2]->mCreator, "ZEL2", 4) == 0 && types[2]->mRevision == 6);
    CHECK(types[3] == nullptr);

    for (int version : {5, 21}) {
        host::Recorder r;
        host::Manager* mgr = zel_new_mgr(version, &r, nullptr);
        CHECK(mgr != nullptr);
        CHECK(r.calls == 0);
        if (mgr) Destroy(mgr);
    }

    host::Recorder newer;
    CHECK(zel_new_mgr(22, &newer, nullptr) == nullptr);
    CHECK(newer.calls == 1 && newer.nullManager);
    CHECK(std::strcmp(newer.last, "Client is newer than Zel Library!") == 0);

    host::Recorder older;
    CHECK(zel_new_mgr(4, &older, nullptr) == nullptr);
    CHECK(older.calls == 1 && older.nullManager);
    CHECK(std::strcmp(older.last, "Client is obsolete for this Zel Library!") == 0);

    CHECK(zel_new_mgr(4, nullptr, nullptr) == nullptr);

    if (failures) std::fprintf(stderr, "%d check(s) failed\n", failures);
    return failures ? 1 : 0;
}
