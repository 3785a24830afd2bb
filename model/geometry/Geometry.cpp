#include "model/geometry/Geometry.h"

#include "frame/CZEL.h"

#include <new>

namespace KeZel {

namespace {

CPolygonList* PolygonTableOf(CHoleList* list) {
    CPolygon* polygon = list ? list->getOwner() : nullptr;
    return polygon ? polygon->getOwner() : nullptr;
}

} // namespace

CLoop::CLoop(CHoleList* list) : mVertices(PolygonTableOf(list)) {}

TZelObjectMgr<CZelVertex>* CLoop::getVertices() {
    return &mVertices;
}

const TZelObjectMgr<CZelVertex>* CLoop::getVertices() const {
    return &mVertices;
}

CPolygon::CPolygon(CPolygonList* owner)
    : mSmoothed(false), mPropertyIndex(0), mVertices(owner), mHoles(nullptr) {}

CPolygon::~CPolygon() {
    delete mHoles;
}

TZelObjectMgr<CZelVertex>* CPolygon::getVertices() {
    return &mVertices;
}

const TZelObjectMgr<CZelVertex>* CPolygon::getVertices() const {
    return &mVertices;
}

CZEL* CPolygon::getZel() const {
    return ZelOf(getOwner());
}

void CPolygon::setPropertyIndex(unsigned int index) {
    // A free-standing polygon has no properties to test against.
    if (CZEL* zel = getZel()) {
        TZelObjectMgr<CZelProperty>* properties = zel->getProperties();
        unsigned int count = properties ? properties->getCount() : 0;
        if (index > count) zel->report("You are assigning a property that does not exist to a polygon.");
    }
    mPropertyIndex = index;
}

CHoleList* CPolygon::holes() {
    // Most polygons never have a hole: the list (with no room) is made on first use.
    if (!mHoles) mHoles = new (std::nothrow) CHoleList(this, 0);
    return mHoles;
}

const CLoop& CPolygon::hole(unsigned int index) const {
    if (!mHoles) ZelLists::ThrowOutOfRange();
    return *mHoles->at(index);
}

void CPolygon::clear() {
    mSmoothed = false;
    mPropertyIndex = 0;
    mVertices.clear();
    if (mHoles) mHoles->clear();
}

} // namespace KeZel
