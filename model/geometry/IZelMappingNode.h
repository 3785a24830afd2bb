// The mapping node: images laid on a surface, with their placement, tiling, cut-outs,
// mix, level-of-detail shifts and movie fields. Public header, C++11. Slot order is part
// of the interface.
//
// Operation order chosen here: the count of linked maps is a getter alone (entries are
// added and removed by identity, never set by position); the use flags of the two
// cut-out colours are isUseCutOut1 and isUseCutOut2, each before its colour.
#ifndef ZEL_MODEL_GEOMETRY_IZELMAPPINGNODE_H
#define ZEL_MODEL_GEOMETRY_IZELMAPPINGNODE_H

#include "foundation/Visibility.h"
#include "frame/ZelTypes.h"
#include "model/geometry/IZelShaderNode.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

// Map kinds, the `kind` of getURL and setURL.
enum EMapKind {
    eDiffuseMap = 1,
    eSpecularMap = 2,
    eGlossyMap = 3,
    eReflectionMap = 4,
    eEnvironmentMap = 5,
    eAlphaMap = 6,
    eBumpMap = 7,
    eNormalMap = 8,
    eNeonMap = 9,
    eMovieMap = 10
};

// Projections of getProjection and setProjection.
enum EMapProjection {
    ePlanetaryProjection = 0,
    eOrthogonalProjection = 1,
    eVerticalProjection = 2,
    eSphericalProjection = 3,
    eYCylindricalProjection = 4,
    eXCylindricalProjection = 5,
    eUVProjection = 6
};

class ZEL_API IMappingNode {
public:
    virtual ITCENode* asNode() = 0;
    virtual const ITCENode* asNode() const = 0;
    // A kind outside 1 .. 10 is reported: the getter answers an empty string, the setter
    // changes nothing.
    virtual const char* getURL(int kind) const = 0;
    virtual void setURL(const char* url, int kind) = 0;
    // A shader mapping is skipped by the material's own colour and map operations.
    virtual bool isShader() const = 0;
    virtual void setShader(bool shader) = 0;
    // Other mapping nodes linked to this one, by their MappingNode.Id.
    virtual unsigned int getMapLinkedCount() const = 0;
    // An index out of range is reported and answers a null UUID.
    virtual const CZelUUID& getMapLinked(unsigned int index) const = 0;
    // A null or an already linked UUID is reported and changes nothing.
    virtual void addLinkedMap(const CZelUUID& uuid) = 0;
    // A UUID that is not linked is reported.
    virtual void removeLinkedMap(const CZelUUID& uuid) = 0;
    virtual const CZelVector* getNormal() const = 0;
    virtual void setNormal(const CZelVector& normal) = 0;
    virtual const CZelVector* getOrigin() const = 0;
    virtual void setOrigin(const CZelVector& origin) = 0;
    virtual const CZelVector* getXAxis() const = 0;
    virtual void setXAxis(const CZelVector& axis) = 0;
    virtual const CZelVector* getYAxis() const = 0;
    virtual void setYAxis(const CZelVector& axis) = 0;
    virtual double getAngle() const = 0;
    virtual void setAngle(double angle) = 0;
    virtual double getHeight() const = 0;
    virtual void setHeight(double height) = 0;
    virtual double getWidth() const = 0;
    virtual void setWidth(double width) = 0;
    virtual double getBump() const = 0;
    virtual void setBump(double bump) = 0;
    virtual double getXCenter() const = 0;
    // Below 0 becomes 0, silently, as in every clipping setter of this class.
    virtual void setXCenter(double center) = 0;
    virtual double getYCenter() const = 0;
    // Below 0 becomes 0.
    virtual void setYCenter(double center) = 0;
    virtual double getXDelta() const = 0;
    virtual void setXDelta(double delta) = 0;
    virtual double getYDelta() const = 0;
    virtual void setYDelta(double delta) = 0;
    virtual double getGlossy() const = 0;
    // Below 0 becomes 0.
    virtual void setGlossy(double glossy) = 0;
    virtual bool isXRepeat() const = 0;
    virtual void setXRepeat(bool repeat) = 0;
    virtual bool isYRepeat() const = 0;
    virtual void setYRepeat(bool repeat) = 0;
    virtual CZelColor getSpecular() const = 0;
    virtual void setSpecular(CZelColor color) = 0;
    virtual CZelColor getTransparent() const = 0;
    virtual void setTransparent(CZelColor color) = 0;
    virtual CZelColor getReflection() const = 0;
    virtual void setReflection(CZelColor color) = 0;
    virtual double getReflectionLimit() const = 0;
    virtual void setReflectionLimit(double limit) = 0;
    virtual bool isCutSet() const = 0;
    virtual void setCutSet(bool cut) = 0;
    virtual bool isUseCutOut1() const = 0;
    virtual void setUseCutOut1(bool use) = 0;
    virtual CZelColor getCutOut1() const = 0;
    virtual void setCutOut1(CZelColor color) = 0;
    virtual bool isUseCutOut2() const = 0;
    virtual void setUseCutOut2(bool use) = 0;
    virtual CZelColor getCutOut2() const = 0;
    virtual void setCutOut2(CZelColor color) = 0;
    virtual bool isXInvert() const = 0;
    virtual void setXInvert(bool invert) = 0;
    virtual bool isYInvert() const = 0;
    virtual void setYInvert(bool invert) = 0;
    // One of EMapProjection.
    virtual int getProjection() const = 0;
    virtual void setProjection(int projection) = 0;
    virtual bool isPlanar() const = 0;
    virtual void setPlanar(bool planar) = 0;
    virtual bool isVisible() const = 0;
    virtual void setVisible(bool visible) = 0;
    virtual bool isMix() const = 0;
    virtual void setMix(bool mix) = 0;
    virtual CZelColor getMixColor() const = 0;
    virtual void setMixColor(CZelColor color) = 0;
    virtual double getMixValue() const = 0;
    // Below 0 becomes 0.
    virtual void setMixValue(double value) = 0;
    virtual double getAngularLODShift() const = 0;
    // Below 0 becomes 0.
    virtual void setAngularLODShift(double shift) = 0;
    virtual double getLinearLODShift() const = 0;
    // Below 0 becomes 0.
    virtual void setLinearLODShift(double shift) = 0;
    virtual bool isCutAlpha() const = 0;
    virtual void setCutAlpha(bool cut) = 0;
    virtual bool isXMirror() const = 0;
    virtual void setXMirror(bool mirror) = 0;
    virtual bool isYMirror() const = 0;
    virtual void setYMirror(bool mirror) = 0;
    virtual bool isAlphaBump() const = 0;
    virtual void setAlphaBump(bool on) = 0;
    virtual bool isAlphaTransparency() const = 0;
    virtual void setAlphaTransparency(bool on) = 0;
    virtual bool isMIPMAP() const = 0;
    virtual void setMIPMAP(bool on) = 0;
    virtual bool isTrilinearFilter() const = 0;
    virtual void setTrilinearFilter(bool on) = 0;
    virtual void setDisplayMode(bool mode) = 0;
    virtual bool isDisplayMode() const = 0;
    virtual double getBrightness() const = 0;
    virtual void setBrightness(double brightness) = 0;
    virtual double getContrast() const = 0;
    virtual void setContrast(double contrast) = 0;
    virtual int getFrame() const = 0;
    virtual void setFrame(int frame) = 0;
    virtual int getMovieLength() const = 0;
    virtual void setMovieLength(int length) = 0;
    virtual double getNormalMap() const = 0;
    virtual void setNormalMap(double power) = 0;
    virtual const CZelUUID* getMappingNodeId() const = 0;
    virtual void setMappingNodeId(const CZelUUID& id) = 0;
    // The node of which this one is a derived copy; null when none.
    virtual const CZelUUID* getMappingNodeParentId() const = 0;
    virtual void setMappingNodeParentId(const CZelUUID& id) = 0;
    // Writes a Node element under `parent` with the node's id and fields; null on failure.
    virtual KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) = 0;
    // Reads the child Node of `parent`, keeping the ids it holds; false on failure.
    virtual bool initWithXML(KestraXML::XIXMLElement* parent) = 0;

protected:
    // Nodes die by Release only.
    virtual ~IMappingNode() {}
};

} // namespace KeZel

#endif
