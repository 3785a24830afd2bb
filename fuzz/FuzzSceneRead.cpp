// A manager's whole read of arbitrary bytes. The first byte chooses the setting: bit 0
// an old client (axis exchanged), bit 1 a host storage that takes the geometry, bit 2 a
// global transform. The bytes up to the first form feed are the main stream; what
// follows it is the secondary stream that any name opens. Every input answers 0 or 1,
// every secondary stream is released once, what was read is written again (0 or 2), and
// the manager goes without leaks.
#include "frame/ZelHost.h"
#include "frame/ZelMgr.h"
#include "model/geometry/IZelPolygon.h"

#include <cstdint>
#include <cstdlib>
#include <string>

using namespace KeZel;

namespace {

int gOpened = 0;
int gReleased = 0;

class FuzzStream : public CZelStream {
public:
    FuzzStream(std::string bytes, std::string secondary, bool owned)
        : mBytes(std::move(bytes)), mSecondary(std::move(secondary)), mPosition(0), mOwned(owned) {}
    bool isOpen() override { return true; }
    CZelStream* openStream(const char* name, int) override {
        if (!name) std::abort();
        ++gOpened;
        return new FuzzStream(mSecondary, std::string(), true);
    }
    void release() override {
        if (!mOwned) std::abort();
        ++gReleased;
        delete this;
    }
    void flush() override {}
    int read(void* buffer, int size) override {
        if (size < 0) std::abort();
        size_t n =
            mBytes.size() - mPosition < static_cast<size_t>(size) ? mBytes.size() - mPosition : size_t(size);
        mBytes.copy(static_cast<char*>(buffer), n, mPosition);
        mPosition += n;
        return static_cast<int>(n);
    }
    void write(const void*, int) override {}
    unsigned int tell() override { return static_cast<unsigned int>(mPosition); }
    void seek(unsigned int position) override {
        if (position > mBytes.size()) std::abort();
        mPosition = position;
    }

private:
    std::string mBytes;
    std::string mSecondary;
    size_t mPosition;
    bool mOwned;
};

// Keeps the counts it is given and looks at every vertex it is handed.
class FuzzStorage : public CZelExtStorage {
public:
    void noteInternalComponent(const CZelUUID* uuid, int) override {
        if (!uuid) std::abort();
    }
    void beginPoints(CZelMgr*, unsigned int) override { mPoints = 0; }
    bool addPoint(CZelMgr*, const double* c, int index) override {
        if (index != mPoints++) std::abort();
        mSum += c[0] + c[1] + c[2];
        return true;
    }
    void beginPolygons(CZelMgr*, unsigned int) override { mPolygons = 0; }
    bool addPolygon(CZelMgr*, CZelPolygon* polygon, int index) override {
        if (index != mPolygons++) std::abort();
        Touch(polygon->getVertices());
        TZelObjectMgr<CZelPolygon::CZelHole>* holes = polygon->getHoles();
        for (unsigned int h = 0; h < holes->getCount(); ++h) Touch(holes->getZelObject(h)->getVertices());
        return true;
    }
    int getPointCount() override { return mPoints; }
    bool getPoint(CZelMgr*, double* c, int index) override {
        c[0] = c[1] = c[2] = index;
        return true;
    }
    int getPolygonCount() override { return mPolygons; }
    bool getPolygon(CZelMgr*, CZelPolygon* polygon, int index) override {
        polygon->setSmoothed(index % 2 != 0);
        for (int k = 0; k < 3; ++k)
            polygon->getVertices()->newZelObject(0xFFFFFFFFu)->mPointIndex = index - k;
        if (index % 3 == 0) polygon->getHoles()->newZelObject(0xFFFFFFFFu);
        return true;
    }

private:
    static void Touch(TZelObjectMgr<CZelVertex>* vertices) {
        unsigned int flags = 0;
        for (unsigned int i = 0; i < vertices->getCount(); ++i) flags |= vertices->getZelObject(i)->mFlags;
        if (flags > 3) std::abort();
    }
    int mPoints = 0;
    int mPolygons = 0;
    double mSum = 0;
};

class Quiet : public CZelFeedback {
public:
    void reportError(CZelMgr*, const char* text) override {
        if (!text) std::abort();
    }
    bool reportProgress(CZelMgr*, int current, int total) override {
        if (current < 0 || current > total || total != 2000) std::abort();
        return true;
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    unsigned char setting = data[0];
    std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    std::string secondary;
    size_t feed = bytes.find('\f');
    if (feed != std::string::npos) {
        secondary = bytes.substr(feed + 1);
        bytes.resize(feed);
    }

    Quiet feedback;
    FuzzStorage storage;
    CZelMgr* mgr = zel_new_mgr((setting & 1) ? eZelVersion7 : eZelVersionCurrent, &feedback,
                               (setting & 2) ? &storage : nullptr);
    if (!mgr) std::abort();
    if (setting & 4) {
        const double shift[16] = {1, 0, 0, 2.5, 0, 0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1};
        mgr->getMgrEx(6)->setTransform(shift);
    }
    gOpened = gReleased = 0;
    FuzzStream stream(bytes, secondary, false);
    int read = mgr->read(&stream);
    if ((read != 0 && read != 1) || gOpened != gReleased) std::abort();
    // Nothing is made out of thin air: every point and polygon came from the bytes.
    if (mgr->getPoints()->getCount() > size || mgr->getPolygons()->getCount() > size) std::abort();

    CZelMemoryStream out;
    int written = mgr->write(&out);
    if (written != 0 && written != 2) std::abort();
    mgr->destroy();
    return 0;
}
