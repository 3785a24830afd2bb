// zeltool: look into scene files without writing a host.
#include "PngFile.h"
#include "TerminalFeedback.h"

#include "frame/Detection.h"
#include "frame/StreamAdapters.h"
#include "frame/ZelHost.h"
#include "zel.h"

#include <cfloat>
#include <cstdio>
#include <cstring>
#include <string>
#include <unistd.h>

using namespace KeZel;

namespace {

const char* kUsage =
    "usage: zeltool COMMAND [ARGS]\n"
    "\n"
    "  info FILE             family, versions, creator and readability, from the file's head\n"
    "  check FILE            read the whole file and print every report\n"
    "                        (exit 0: clean, 1: read with warnings, 2: failed)\n"
    "  stats FILE            counts of the scene's content and the bounding box of its geometry\n"
    "  preview FILE OUT.png  the preview image as PNG\n"
    "  convert IN OUT.zel    read any family and write the current format\n"
    "  formats               the file types the library reads\n"
    "  version               library and interface versions\n";

int Fail(const std::string& file, const std::string& message) {
    std::fprintf(stderr, "zeltool: %s: %s\n", file.c_str(), message.c_str());
    return 2;
}

const char* Verdict(eReadability r) {
    switch (r) {
    case eReadabilityOld:
        return "old: written by a library older than 3.0.1, converted on reading";
    case eReadabilityPrevious:
        return "previous: written by library 3.0.1";
    case eReadabilityCurrent:
        return "current";
    case eReadabilityNewer:
        return "newer: written by a newer library, readable in full";
    case eReadabilityNewerUnsafe:
        return "newer, unsafe: some content may be lost";
    case eReadabilityTooNew:
        return "too new: must not be read by this library";
    case eReadabilityForeign:
        return "foreign: written by another application";
    default:
        return "not a scene file";
    }
}

std::string Triple(const CZelVersion& v) {
    return std::to_string(v.major) + "." + std::to_string(v.minor) + "." + std::to_string(v.patch);
}

int Info(const std::string& path) {
    CZelFileStream in(path.c_str(), 0);
    if (!in.isOpen()) return Fail(path, "can't open the file");
    eReadability readability = eReadabilityNone;
    CZelVersion version;
    char creator[256] = {0};
    bool readable = zel_check_format2(&in, &readability, &version, creator, sizeof creator);
    unsigned char first = 0;
    in.seek(0);
    in.read(&first, 1);
    in.seek(0);
    bool xml = first == '<';
    std::printf("file:        %s\n", path.c_str());
    std::printf("family:      %s\n",
                xml ? "XML scene or object (.zel, .zof)" : "legacy text (.opt with .db)");
    if (xml && readability != eReadabilityNone) {
        // The version pass again, for the facts the verdict leaves out.
        CCheckZELFile check;
        try {
            CZELXMLReadStream input(&in);
            check.Parse(&input);
        } catch (const std::exception&) {
        }
        in.seek(0);
        CCheckZELCreatorFile application;
        try {
            CZELXMLReadStream input(&in);
            application.Parse(&input);
        } catch (const std::exception&) {
        }
        std::printf("library:     %s\n", Triple(check.mLibrary).c_str());
        std::printf("file format: %d.%d\n", check.mFileMajor, check.mFileMinor);
        std::printf("min/safe:    %s / %s\n", Triple(check.mMinVersion).c_str(),
                    Triple(check.mSafeVersion).c_str());
        std::printf("creator:     %s\n",
                    application.mCreator.empty() ? "(none)" : application.mCreator.c_str());
    } else if (creator[0]) {
        std::printf("creator:     %s\n", creator);
    }
    std::printf("readability: %s\n", Verdict(readability));
    return readable ? 0 : 1;
}

// Reads a file into a manager; answers the read's result and prints the reports.
int Read(const std::string& path, CZelMgr* mgr, ZelTool::TerminalFeedback& feedback) {
    CZelFileStream in(path.c_str(), 0);
    if (!in.isOpen()) {
        Fail(path, "can't open the file");
        return 1;
    }
    int result = mgr->read(&in);
    feedback.endProgress();
    for (const CZelReportCollector::Report& r : feedback.reports())
        std::fprintf(stderr, "zeltool: %s: %s\n", path.c_str(), r.text.c_str());
    return result;
}

int Check(const std::string& path) {
    ZelTool::TerminalFeedback feedback;
    CZelMgrHandle mgr(&feedback);
    if (!mgr) return Fail(path, "can't create a scene manager");
    if (Read(path, mgr.get(), feedback) != 0) return 2;
    if (!feedback.empty()) return 1;
    std::printf("%s: read without a report\n", path.c_str());
    return 0;
}

template <class T> unsigned int Count(TZelObjectMgr<T>* list) {
    return list ? list->getCount() : 0;
}

int Stats(const std::string& path) {
    ZelTool::TerminalFeedback feedback;
    CZelMgrHandle mgr(&feedback);
    if (!mgr) return Fail(path, "can't create a scene manager");
    if (Read(path, mgr.get(), feedback) != 0) return 2;
    CZelMgrEx* ex = mgr->getMgrEx(eZelExtendedVersionCurrent);

    TZelObjectMgr<CZelVector>* points = mgr->getPoints();
    TZelObjectMgr<CZelPolygon>* polygons = mgr->getPolygons();
    unsigned int holed = 0;
    for (unsigned int i = 0; i < Count(polygons); ++i)
        if (Count(polygons->getZelObject(i)->getHoles()) > 0) ++holed;
    unsigned int paths = 0;
    for (unsigned int i = 0; ex && i < Count(ex->getAnimations()); ++i)
        paths += Count(ex->getAnimations()->getZelObject(i)->getCameraPaths());
    unsigned int nodes = 0;
    for (unsigned int i = 0; ex && i < Count(ex->getPanoramas()); ++i)
        nodes += Count(ex->getPanoramas()->getZelObject(i)->getNodes());

    std::printf("points:            %u\n", Count(points));
    std::printf("polygons:          %u (%u with holes)\n", Count(polygons), holed);
    std::printf("materials:         %u\n", Count(mgr->getProperties()));
    std::printf("lights:            %u\n", Count(mgr->getLights()));
    std::printf("heliodons:         %u\n", Count(mgr->getHeliodons()));
    std::printf("perspective views: %u\n", Count(mgr->getCameras()));
    std::printf("parallel views:    %u\n", Count(mgr->getParallelViews()));
    std::printf("panoramas:         %u (%u nodes)\n", ex ? Count(ex->getPanoramas()) : 0, nodes);
    std::printf("camera paths:      %u\n", paths);
    std::printf("view objects:      %u\n", Count(mgr->getViewObjects()));
    std::printf("object definitions:%u\n", Count(mgr->getObjectDefinitions()));
    std::printf("object instances:  %u\n", Count(mgr->getObjectInstances()));
    std::printf("scenarios:         %u\n", Count(mgr->getScenarios()));
    if (Count(points) > 0) {
        CZelVector lo = {DBL_MAX, DBL_MAX, DBL_MAX}, hi = {-DBL_MAX, -DBL_MAX, -DBL_MAX};
        for (unsigned int i = 0; i < points->getCount(); ++i) {
            const CZelVector* p = points->getZelObject(i);
            if (p->x < lo.x) lo.x = p->x;
            if (p->y < lo.y) lo.y = p->y;
            if (p->z < lo.z) lo.z = p->z;
            if (p->x > hi.x) hi.x = p->x;
            if (p->y > hi.y) hi.y = p->y;
            if (p->z > hi.z) hi.z = p->z;
        }
        std::printf("bounding box:      (%g, %g, %g) .. (%g, %g, %g)\n", lo.x, lo.y, lo.z, hi.x, hi.y, hi.z);
    } else {
        std::printf("bounding box:      (no points)\n");
    }
    return 0;
}

int Preview(const std::string& path, const std::string& out) {
    CZelFileStream in(path.c_str(), 0);
    if (!in.isOpen()) return Fail(path, "can't open the file");
    IZelImage* image = zel_read_preview_image(&in);
    if (!image) return Fail(path, "the file has no preview image");
    ZelTool::Pixels pixels;
    pixels.width = image->GetWidth();
    pixels.height = image->GetHeight();
    pixels.data.assign(image->GetData(),
                       image->GetData() + static_cast<size_t>(pixels.width) * pixels.height);
    image->Release();
    if (pixels.width == 0 || pixels.height == 0) return Fail(path, "the preview image is empty");
    std::string error;
    if (!ZelTool::WritePng(out, pixels, error)) return Fail(out, error);
    std::printf("%s: %ux%u preview written to %s\n", path.c_str(), pixels.width, pixels.height, out.c_str());
    return 0;
}

int Convert(const std::string& in, const std::string& out) {
    ZelTool::TerminalFeedback feedback;
    CZelMgrHandle mgr(&feedback);
    if (!mgr) return Fail(in, "can't create a scene manager");
    if (Read(in, mgr.get(), feedback) != 0) return 2;
    feedback.clear();
    mgr->setApplicationInfo("zeltool", "3.0.2");
    // A failed conversion never damages an existing target: the file is written beside
    // it and renamed over it only when the write went through.
    std::string temporary = out + ".zeltool-" + std::to_string(::getpid()) + ".tmp";
    int result;
    bool closed;
    {
        CZelFileStream file(temporary.c_str(), 1);
        if (!file.isOpen()) return Fail(out, "can't create the file");
        result = mgr->write(&file);
        closed = file.close();
    }
    feedback.endProgress();
    for (const CZelReportCollector::Report& r : feedback.reports())
        std::fprintf(stderr, "zeltool: %s: %s\n", out.c_str(), r.text.c_str());
    if (result != 0 || !closed) {
        std::remove(temporary.c_str());
        return Fail(out, "not written");
    }
    if (std::rename(temporary.c_str(), out.c_str()) != 0) {
        std::remove(temporary.c_str());
        return Fail(out, "can't replace the file");
    }
    std::printf("%s written\n", out.c_str());
    return 0;
}

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
    std::fputs(kUsage, out);
    return out == stdout ? 0 : 2;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) return Usage(stderr);
    std::string command = argv[1];
    if (command == "--help" || command == "-h" || command == "help") return Usage(stdout);
    if (command == "version" || command == "--version") return Version();
    if (command == "formats") return Formats();
    if (command == "info" && argc == 3) return Info(argv[2]);
    if (command == "check" && argc == 3) return Check(argv[2]);
    if (command == "stats" && argc == 3) return Stats(argv[2]);
    if (command == "preview" && argc == 4) return Preview(argv[2], argv[3]);
    if (command == "convert" && argc == 4) return Convert(argv[2], argv[3]);
    std::fprintf(stderr, "zeltool: unknown command or wrong arguments: %s\n", command.c_str());
    return Usage(stderr);
}
