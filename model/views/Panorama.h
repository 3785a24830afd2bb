// Panoramas: walkable sets of spherical views. A panorama (CZelPanorama) holds nodes
// (CVRPanorama), each a viewpoint with its own view settings, and links (CVRPanoLink),
// each joining two nodes through two configurable ends (CVRPanoLinkConfig).
//
// All clips of node and link values are silent.
#pragma once

#include "frame/ObjectLists.h"
#include "model/views/IZelPanorama.h"
#include "model/views/RenderingOpt.h"
#include "model/views/ViewInfo.h"

#include <string>

namespace KeZel {

class CZEL;
class CZelPanorama;
class CVRPanorama;
class CVRPanoLink;
typedef TObjectMgr<CZelPanorama, IZelPanorama> CPanoramaList;
typedef TObjectMgr<CVRPanorama, IZelPanoNode, CZelPanorama> CPanoNodeList;
typedef TObjectMgr<CVRPanoLink, CZelPanoLink, CZelPanorama> CPanoLinkList;

class CVRPanoLinkConfig : public TZelFrontier<CZelPanoLinkConfig> {
public:
    enum { kHotspots = 5 };

    CVRPanoLinkConfig() : mIndex(0), mDirection(), mZoom(0.0), mVerticalPan(0.0), mFocal(0.0), mHotspots() {}

    int getIndex() const override { return mIndex; }
    void setIndex(int index) override { mIndex = index; }
    const CZelVector* getDirection() const override { return &mDirection; }
    void setDirection(const CZelVector& direction) override { mDirection = direction; }
    double getZoom() const override { return mZoom; }
    void setZoom(double zoom) override;
    double getVerticalPan() const override { return mVerticalPan; }
    void setVerticalPan(double pan) override;
    double getFocal() const override { return mFocal; }
    void setFocal(double focal) override { mFocal = focal; }
    const CZelVector2D* getHotspot(int index) const override;
    // The first hotspot is stored as it comes, so that it can hold a point that the
    // others can't.
    void setHotspot(int index, const CZelVector2D& point) override;

private:
    int mIndex;
    CZelVector mDirection;
    double mZoom;
    double mVerticalPan;
    double mFocal;
    CZelVector2D mHotspots[kHotspots];
};

class CVRPanoLink : public TZelFrontier<CZelPanoLink> {
public:
    // Raises "Can't create UUID" when no identity can be made.
    explicit CVRPanoLink(CZEL* zel = nullptr);
    explicit CVRPanoLink(CPanoLinkList* list);

    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Pano.Link.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const CZelPanoLinkConfig* getFirstConfig() const override { return &mFirst; }
    CZelPanoLinkConfig* getFirstConfig() override { return &mFirst; }
    const CZelPanoLinkConfig* getSecondConfig() const override { return &mSecond; }
    CZelPanoLinkConfig* getSecondConfig() override { return &mSecond; }
    const CZelUUID* getUUID() const override { return &mUUID; }
    void setUUID(const CZelUUID& uuid) override { mUUID = uuid; }

    CZEL* getZel() const { return mZel; }
    CVRPanoLinkConfig& first() { return mFirst; }
    const CVRPanoLinkConfig& first() const { return mFirst; }
    CVRPanoLinkConfig& second() { return mSecond; }
    const CVRPanoLinkConfig& second() const { return mSecond; }

private:
    CZEL* mZel;
    CVRPanoLinkConfig mFirst;
    CVRPanoLinkConfig mSecond;
    CZelUUID mUUID;
};

// A node of a panorama.
class CVRPanorama : public TZelFrontier<IZelPanoNode> {
public:
    // Raises "Can't create UUID" when no identity can be made.
    explicit CVRPanorama(CZEL* zel = nullptr);
    explicit CVRPanorama(CPanoNodeList* list);

    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    CZelVector* getPosition(CZelVector* buffer) const override;
    void setPosition(const CZelVector& position) override { mPosition = position; }
    CZelVector* getDirection(CZelVector* buffer) const override;
    void setDirection(const CZelVector& direction) override { mDirection = direction; }
    int getViewFlags() const override { return mViewFlags; }
    void setViewFlags(int flags) override { mViewFlags = flags; }
    double getFocal() const override { return mFocal; }
    void setFocal(double focal) override;
    double getZoom() const override { return mZoom; }
    void setZoom(double zoom) override;
    double getVerticalPan() const override { return mVerticalPan; }
    void setVerticalPan(double pan) override;
    int getNbLinks() const override { return mNbLinks; }
    void setNbLinks(int count) override { mNbLinks = count; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Panorama.Node.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const IZelViewInfo* getViewInfo() const override { return &mViewInfo; }
    IZelViewInfo* getViewInfo() override { return &mViewInfo; }
    const CZelUUID* getUUID() const override { return &mUUID; }
    void setUUID(const CZelUUID& uuid) override { mUUID = uuid; }
    int getUIValue() const override { return mUIValue; }
    void setUIValue(int value) override { mUIValue = value; }

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    const CZelVector& position() const { return mPosition; }
    const CZelVector& direction() const { return mDirection; }
    CZelViewInfo& viewInfo() { return mViewInfo; }
    const CZelViewInfo& viewInfo() const { return mViewInfo; }

private:
    CZEL* mZel;
    std::string mName;
    CZelVector mPosition;
    CZelVector mDirection;
    int mViewFlags;
    double mFocal;
    double mZoom;
    double mVerticalPan;
    int mNbLinks;
    CZelViewInfo mViewInfo;
    CZelUUID mUUID;
    int mUIValue;
};

class CZelPanorama : public TZelFrontier<IZelPanorama> {
public:
    // Raises "Can't create UUID" when no identity can be made.
    explicit CZelPanorama(CZEL* zel = nullptr);
    explicit CZelPanorama(CPanoramaList* list) : CZelPanorama(list ? list->getZel() : nullptr) {}

    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Panorama.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    const TZelObjectMgr<IZelPanoNode>* getNodes() const override { return &mNodes; }
    TZelObjectMgr<IZelPanoNode>* getNodes() override { return &mNodes; }
    const TZelObjectMgr<CZelPanoLink>* getLinks() const override { return &mLinks; }
    TZelObjectMgr<CZelPanoLink>* getLinks() override { return &mLinks; }
    int getCurrentNode() const override { return mCurrentNode; }
    // Raises "getZelObject: Bad index value" for an index equal to the number of nodes.
    void setCurrentNode(int index) override;
    const CZelVector* getCurrentDirection() const override { return &mCurrentDirection; }
    void setCurrentDirection(const CZelVector& direction) override { mCurrentDirection = direction; }
    double getCurrentFocal() const override { return mCurrentFocal; }
    void setCurrentFocal(double focal) override { mCurrentFocal = focal; }
    const CZelPanoramaRenderingOpt* getViewOpt() const override { return &mViewOpt; }
    CZelPanoramaRenderingOpt* getViewOpt() override { return &mViewOpt; }
    const CZelUUID* getUUID() const override { return &mUUID; }
    void setUUID(const CZelUUID& uuid) override { mUUID = uuid; }

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    CPanoNodeList& nodes() { return mNodes; }
    const CPanoNodeList& nodes() const { return mNodes; }
    CPanoLinkList& links() { return mLinks; }
    const CPanoLinkList& links() const { return mLinks; }
    CVRRenderingOpt& viewOpt() { return mViewOpt; }
    const CVRRenderingOpt& viewOpt() const { return mViewOpt; }

private:
    CZEL* mZel;
    std::string mName;
    CPanoNodeList mNodes;
    CPanoLinkList mLinks;
    CVRRenderingOpt mViewOpt;
    int mCurrentNode;
    CZelUUID mUUID;
    CZelVector mCurrentDirection;
    double mCurrentFocal;
};

} // namespace KeZel
