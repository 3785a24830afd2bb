// A material: its own fields and, as CZelTCE, the shader tree under it.
// Public header, C++11. Slot order is part of the interface.
//
// Operation order chosen here (where the table gives an operation but not its form):
// getters of mapping values that may be missing answer false without a Mapping node and
// fill their out-pointers otherwise (null pointers skipped); copyFrom takes a const
// source; getTCE and the two-form accesses of CZelTCE answer the same object in both forms.
#ifndef ZEL_MODEL_GEOMETRY_IZELPROPERTY_H
#define ZEL_MODEL_GEOMETRY_IZELPROPERTY_H

#include "foundation/Visibility.h"
#include "frame/ZelTypes.h"
#include "model/geometry/IZelShaderNode.h"
#include "model/objects/IZelString.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

// The shader side of a property. A node made by createNode comes with one reference for
// the caller: hand it on with addChild or setChild, then Release it.
class ZEL_API CZelTCE {
public:
    virtual const char* getURL() const = 0;
    virtual void setURL(const char* url) = 0;
    virtual const CZelUUID* getShaderId() const = 0;
    virtual void setShaderId(const CZelUUID& id) = 0;
    // The shader's name in several languages.
    virtual IZelString* getShaderNames() = 0;
    virtual const IZelString* getShaderNames() const = 0;
    virtual IRootNode* getRootNode() = 0;
    virtual const IRootNode* getRootNode() const = 0;
    // Kind eRootNode or above eCustomNode is reported and answers null.
    virtual ITCENode* createNode(int kind) = 0;
    virtual ~CZelTCE() {}
};

// Colours and maps are a facade over the tree: L is the first Leaf and M the first Mapping
// without the shader flag, found down the chain of first children. Getters never create a
// node and answer the stated default without one; setters make the node they need.
class ZEL_API CZelProperty {
public:
    virtual const char* getName() const = 0;
    virtual void setName(const char* name) = 0;
    virtual bool isVisible() const = 0;
    virtual void setVisible(bool visible) = 0;
    virtual bool isCastShadow() const = 0;
    virtual void setCastShadow(bool cast) = 0;
    virtual double getSmooth() const = 0;
    // Clipped to 0.01 .. 1.0, silently.
    virtual void setSmooth(double smooth) = 0;
    virtual double getScale() const = 0;
    // Below 0 becomes 0, silently.
    virtual void setScale(double scale) = 0;
    // L; 100, 100, 100 without one.
    virtual CZelColor getDiffuseColor() const = 0;
    virtual void setDiffuseColor(CZelColor color) = 0;
    // L; black without one.
    virtual CZelColor getSpecularColor() const = 0;
    virtual void setSpecularColor(CZelColor color) = 0;
    // L's glossiness, as getGlossyValue; a null pointer does nothing.
    virtual void getGlossy(double* glossy) const = 0;
    virtual void setGlossy(double glossy) = 0;
    virtual CZelColor getTransparentColor() const = 0;
    virtual void setTransparentColor(CZelColor color) = 0;
    virtual CZelColor getReflectionColor() const = 0;
    virtual void setReflectionColor(CZelColor color) = 0;
    // M's URL of kind Diffuse; empty without one.
    virtual const char* getDiffuseMap() const = 0;
    virtual void setDiffuseMap(const char* url) = 0;
    // 0 Orthogonal, 1 Orthogonal and planar, 2 Vertical, 3 Spherical, 4 Y.Cylindrical,
    // 5 X.Cylindrical, 6 Planetary, 7 Mapping.UV; -1 without M. The setter ignores a value
    // above 7 (M is made all the same).
    virtual int getMapProjection() const = 0;
    virtual void setMapProjection(int projection) = 0;
    virtual bool getMapAxes(CZelVector* origin, CZelVector* xAxis, CZelVector* yAxis) const = 0;
    // Also sets M's normal to the normalised x by y, unless that product is degenerate.
    virtual void setMapAxes(const CZelVector& origin, const CZelVector& xAxis, const CZelVector& yAxis) = 0;
    virtual bool getMapTransparentColor(CZelColor* color) const = 0;
    virtual void setMapTransparentColor(CZelColor color) = 0;
    virtual bool getMapRepeat(bool* xRepeat, bool* yRepeat) const = 0;
    virtual void setMapRepeat(bool xRepeat, bool yRepeat) = 0;
    virtual bool getMapInvert(bool* xInvert, bool* yInvert) const = 0;
    virtual void setMapInvert(bool xInvert, bool yInvert) = 0;
    virtual bool getMapSize(double* height, double* width) const = 0;
    virtual void setMapSize(double height, double width) = 0;
    virtual const CZelTCE* getTCE() const = 0;
    virtual CZelTCE* getTCE() = 0;
    virtual bool getMapAngle(double* angle) const = 0;
    virtual void setMapAngle(double angle) = 0;
    // Copies the other's tree (deep clone) and fields; the id and the UI value stay this
    // property's own. False on failure, reported.
    virtual bool copyFrom(const CZelProperty* other) = 0;
    virtual bool isBillboard() const = 0;
    virtual void setBillboard(bool billboard) = 0;
    // L's glossiness; 6.0 without one.
    virtual double getGlossyValue() const = 0;
    virtual CZelColor getNeonColor() const = 0;
    virtual void setNeonColor(CZelColor color) = 0;
    virtual double getNeonValue() const = 0;
    virtual void setNeonValue(double value) = 0;
    virtual double getRefraction() const = 0;
    virtual void setRefraction(double refraction) = 0;
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    // Reads the child Property of `parent`.
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;
    virtual const CZelUUID* getId() const = 0;
    // A null id is replaced by a fresh one.
    virtual void setId(const CZelUUID& id) = 0;
    virtual const CZelUUID* getOverloadPropIndex() const = 0;
    virtual void setOverloadPropIndex(const CZelUUID& id) = 0;
    virtual const CZelUUID* getOverloadId() const = 0;
    virtual void setOverloadId(const CZelUUID& id) = 0;
    virtual bool isReceiveShadow() const = 0;
    virtual void setReceiveShadow(bool receive) = 0;
    virtual bool isUVDefined() const = 0;
    virtual void setUVDefined(bool defined) = 0;
    virtual bool getAngularLODShift(double* shift) const = 0;
    virtual void setAngularLODShift(double shift) = 0;
    // The same field as the angular shift: a mapping's linear shift is not reachable here.
    virtual bool getLinearLODShift(double* shift) const = 0;
    virtual void setLinearLODShift(double shift) = 0;
    virtual bool getCutAlpha() const = 0;
    virtual void setCutAlpha(bool cut) = 0;
    // M's limit when there is an M, otherwise L's.
    virtual double getReflectionLimit() const = 0;
    virtual void setReflectionLimit(double limit) = 0;
    virtual CZelColor getEmittingColor() const = 0;
    virtual void setEmittingColor(CZelColor color) = 0;
    virtual double getEmittingPower() const = 0;
    virtual void setEmittingPower(double power) = 0;
    virtual void setDisplayMode(bool mode) = 0;
    virtual bool getDisplayMode() const = 0;
    virtual int getUIValue() const = 0;
    virtual void setUIValue(int value) = 0;
    virtual double getNormalMapPower() const = 0;
    virtual void setNormalMapPower(double power) = 0;
    // M's URL of kind Normal.Map; empty without one.
    virtual const char* getNormalMap() const = 0;
    virtual void setNormalMap(const char* url) = 0;
    virtual ~CZelProperty() {}
};

} // namespace KeZel

#endif
