// A walkable set of spherical views: nodes, each a viewpoint with its own settings, and
// links joining two nodes through hotspots. Public header, C++11. Slot order is part of
// the interface.
//
// All clips of node and link values are silent.
#ifndef ZEL_MODEL_VIEWS_IZELPANORAMA_H
#define ZEL_MODEL_VIEWS_IZELPANORAMA_H

#include "foundation/Visibility.h"
#include "frame/ZelObjectMgr.h"
#include "frame/ZelTypes.h"
#include "model/views/IZelRenderingOpt.h"
#include "model/views/IZelViewInfo.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

class ZEL_API IZelPanoNode {
public:
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    // Copies into `buffer` and answers it, unlike the other views' vector getters.
    virtual CZelVector* getPosition(CZelVector* buffer) const = 0;
    virtual void setPosition(const CZelVector& position) = 0;
    // Copies into `buffer` and answers it.
    virtual CZelVector* getDirection(CZelVector* buffer) const = 0;
    virtual void setDirection(const CZelVector& direction) = 0;
    virtual int getViewFlags() const = 0;
    virtual void setViewFlags(int flags) = 0;
    virtual double getFocal() const = 0;
    // Clips into 1.0 .. 180.0.
    virtual void setFocal(double focal) = 0;
    virtual double getZoom() const = 0;
    // Clips into 0.0 .. 1.0.
    virtual void setZoom(double zoom) = 0;
    virtual double getVerticalPan() const = 0;
    // Clips into -1.0 .. 1.0.
    virtual void setVerticalPan(double pan) = 0;
    // A stored number, not kept in step with the links.
    virtual int getNbLinks() const = 0;
    virtual void setNbLinks(int count) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const IZelViewInfo* getViewInfo() const = 0;
    virtual IZelViewInfo* getViewInfo() = 0;
    virtual const CZelUUID* getUUID() const = 0;
    virtual void setUUID(const CZelUUID& uuid) = 0;
    virtual int getUIValue() const = 0;
    virtual void setUIValue(int value) = 0;
    virtual ~IZelPanoNode() {}
};

// One end of a link.
class ZEL_API CZelPanoLinkConfig {
public:
    // The node's place in the panorama's list of nodes.
    virtual int getIndex() const = 0;
    virtual void setIndex(int index) = 0;
    virtual const CZelVector* getDirection() const = 0;
    virtual void setDirection(const CZelVector& direction) = 0;
    virtual double getZoom() const = 0;
    // Clips into 0.0 .. 1.0.
    virtual void setZoom(double zoom) = 0;
    virtual double getVerticalPan() const = 0;
    // Clips into -1.0 .. 1.0.
    virtual void setVerticalPan(double pan) = 0;
    virtual double getFocal() const = 0;
    virtual void setFocal(double focal) = 0;
    // Five hotspots; the index is clipped into 0 .. 4.
    virtual const CZelVector2D* getHotspot(int index) const = 0;
    // Clips the index into 0 .. 4, and, above index 0, both coordinates into -1.0 .. 1.0.
    virtual void setHotspot(int index, const CZelVector2D& point) = 0;
    virtual ~CZelPanoLinkConfig() {}
};

class ZEL_API CZelPanoLink {
public:
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const CZelPanoLinkConfig* getFirstConfig() const = 0;
    virtual CZelPanoLinkConfig* getFirstConfig() = 0;
    virtual const CZelPanoLinkConfig* getSecondConfig() const = 0;
    virtual CZelPanoLinkConfig* getSecondConfig() = 0;
    virtual const CZelUUID* getUUID() const = 0;
    virtual void setUUID(const CZelUUID& uuid) = 0;
    virtual ~CZelPanoLink() {}
};

class ZEL_API IZelPanorama {
public:
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    virtual const TZelObjectMgr<IZelPanoNode>* getNodes() const = 0;
    virtual TZelObjectMgr<IZelPanoNode>* getNodes() = 0;
    virtual const TZelObjectMgr<CZelPanoLink>* getLinks() const = 0;
    virtual TZelObjectMgr<CZelPanoLink>* getLinks() = 0;
    virtual int getCurrentNode() const = 0;
    // Clips the index into the nodes (a negative one to 0, one past the count to the last
    // node), warns when it changed it, and takes the node's direction as the current one.
    // An index equal to the number of nodes is kept and fails on the node lookup.
    virtual void setCurrentNode(int index) = 0;
    virtual const CZelVector* getCurrentDirection() const = 0;
    virtual void setCurrentDirection(const CZelVector& direction) = 0;
    virtual double getCurrentFocal() const = 0;
    virtual void setCurrentFocal(double focal) = 0;
    virtual const CZelPanoramaRenderingOpt* getViewOpt() const = 0;
    virtual CZelPanoramaRenderingOpt* getViewOpt() = 0;
    virtual const CZelUUID* getUUID() const = 0;
    virtual void setUUID(const CZelUUID& uuid) = 0;
    virtual ~IZelPanorama() {}
};

} // namespace KeZel

#endif
