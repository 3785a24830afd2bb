#include "model/views/Panorama.h"

#include "frame/ValueHelpers.h"
#include "codec/PanoramaCodec.h"
#include "frame/AxisRule.h"
#include "frame/CZEL.h"
#include "model/light/XMLGuards.h"

namespace KeZel {

using KestraXML::XIXMLElement;

namespace {

int ClipHotspotIndex(int index) {
    return index < 0 ? 0 : (index >= CVRPanoLinkConfig::kHotspots ? CVRPanoLinkConfig::kHotspots - 1 : index);
}

} // namespace

// ---- CVRPanoLinkConfig

void CVRPanoLinkConfig::setZoom(double zoom) {
    mZoom = ZelClip(zoom, 0.0, 1.0);
}

void CVRPanoLinkConfig::setVerticalPan(double pan) {
    mVerticalPan = ZelClip(pan, -1.0, 1.0);
}

const CZelVector2D* CVRPanoLinkConfig::getHotspot(int index) const {
    return &mHotspots[ClipHotspotIndex(index)];
}

void CVRPanoLinkConfig::setHotspot(int index, const CZelVector2D& point) {
    index = ClipHotspotIndex(index);
    CZelVector2D p = point;
    if (index > 0) {
        p.x = ZelClip(p.x, -1.0, 1.0);
        p.y = ZelClip(p.y, -1.0, 1.0);
    }
    mHotspots[index] = p;
}

// ---- CVRPanoLink

CVRPanoLink::CVRPanoLink(CZEL* zel) : mZel(zel), mUUID(NewZelUUID()) {}

CVRPanoLink::CVRPanoLink(CPanoLinkList* list) : CVRPanoLink(list ? list->getZel() : nullptr) {}

XIXMLElement* CVRPanoLink::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelPanoLink::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddPanoLink(io, parent, *this); });
}

bool CVRPanoLink::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelPanoLink::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetPanoLink(io, CZelXMLIO::need(parent, "Pano.Link"), *this);
        return true;
    });
}

// ---- CVRPanorama

CVRPanorama::CVRPanorama(CZEL* zel)
    : mZel(zel), mName("Panorama node 0"), mViewFlags(2), mFocal(103.358887), mZoom(0.6), mVerticalPan(0.0),
      mNbLinks(0), mViewInfo(zel), mUUID(NewZelUUID()), mUIValue(0) {
    mPosition = {0.0, 0.0, -200.0};
    mDirection = {0.0, 0.0, 1.0};
    bool oldClient = zel && zel->isOldClient();
    AxisExport(oldClient, mPosition.x, mPosition.y, mPosition.z);
    AxisExport(oldClient, mDirection.x, mDirection.y, mDirection.z);
}

CVRPanorama::CVRPanorama(CPanoNodeList* list) : CVRPanorama(list ? list->getZel() : nullptr) {}

CZelVector* CVRPanorama::getPosition(CZelVector* buffer) const {
    if (buffer) *buffer = mPosition;
    return buffer;
}

CZelVector* CVRPanorama::getDirection(CZelVector* buffer) const {
    if (buffer) *buffer = mDirection;
    return buffer;
}

void CVRPanorama::setFocal(double focal) {
    mFocal = ZelClip(focal, 1.0, 180.0);
}

void CVRPanorama::setZoom(double zoom) {
    mZoom = ZelClip(zoom, 0.0, 1.0);
}

void CVRPanorama::setVerticalPan(double pan) {
    mVerticalPan = ZelClip(pan, -1.0, 1.0);
}

XIXMLElement* CVRPanorama::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "IZelPanoNode::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddPanoNode(io, parent, *this); });
}

bool CVRPanorama::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "IZelPanoNode::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetPanoNode(io, CZelXMLIO::need(parent, "Panorama.Node"), *this);
        return true;
    });
}

// ---- CZelPanorama

CZelPanorama::CZelPanorama(CZEL* zel)
    : mZel(zel), mNodes(this), mLinks(this), mViewOpt(zel), mCurrentNode(0), mUUID(NewZelUUID()),
      mCurrentDirection(), mCurrentFocal(0.0) {}

void CZelPanorama::setCurrentNode(int index) {
    int count = static_cast<int>(mNodes.getCount());
    mCurrentNode = index < 0 ? 0 : index;
    // One past the last node is kept, and fails on the lookup below.
    if (mCurrentNode > 0 && mCurrentNode > count) mCurrentNode = count - 1;
    if (count > 0) {
        IZelPanoNode* node = mNodes.getZelObject(static_cast<unsigned int>(mCurrentNode));
        if (!node) Kestra::XThrow("getZelObject: Bad index value");
        node->getDirection(&mCurrentDirection);
    }
    if (mCurrentNode != index && mZel) mZel->report("IZelPanorama::setCurrentNode - index invalid");
}

XIXMLElement* CZelPanorama::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "IZelPanorama::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddPanorama(io, parent, *this); });
}

bool CZelPanorama::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "IZelPanorama::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetPanorama(io, CZelXMLIO::need(parent, "Panorama"), *this);
        return true;
    });
}

} // namespace KeZel
