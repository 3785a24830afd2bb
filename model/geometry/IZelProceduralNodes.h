// The shader node kinds besides the mapping: Leaf, Chess, Turbulence, Fresnel, Glazing and
// Custom. Public header, C++11. Slot order is part of the interface.
//
// Operation order chosen here: the further double of the glazing node is
// setExtraValue/getExtraValue (setter first); the custom node's tree is reached through
// its root element Custom.Data, getCustomData, plain first, then const.
#ifndef ZEL_MODEL_GEOMETRY_IZELPROCEDURALNODES_H
#define ZEL_MODEL_GEOMETRY_IZELPROCEDURALNODES_H

#include "foundation/Visibility.h"
#include "frame/ZelTypes.h"
#include "model/geometry/IZelShaderNode.h"
#include "xml/XMLInterfaces.h"

namespace KeZel {

// The plain surface at the bottom of a tree. It has no children.
class ZEL_API ILeafNode {
public:
    virtual ITCENode* asNode() = 0;
    virtual const ITCENode* asNode() const = 0;
    virtual CZelColor getDiffuse() const = 0;
    virtual void setDiffuse(CZelColor color) = 0;
    virtual CZelColor getTransparent() const = 0;
    virtual void setTransparent(CZelColor color) = 0;
    virtual CZelColor getSpecular() const = 0;
    virtual void setSpecular(CZelColor color) = 0;
    virtual CZelColor getReflection() const = 0;
    virtual void setReflection(CZelColor color) = 0;
    virtual double getReflectionLimit() const = 0;
    virtual void setReflectionLimit(double limit) = 0;
    virtual CZelColor getNeonColor() const = 0;
    virtual void setNeonColor(CZelColor color) = 0;
    virtual double getNeonValue() const = 0;
    // Below 0 becomes 0.
    virtual void setNeonValue(double value) = 0;
    virtual double getRefraction() const = 0;
    // Clipped to 0 .. 3.5.
    virtual void setRefraction(double refraction) = 0;
    virtual double getGlossy() const = 0;
    // Below 0 becomes 0.
    virtual void setGlossy(double glossy) = 0;
    virtual CZelColor getEmittingColor() const = 0;
    virtual void setEmittingColor(CZelColor color) = 0;
    virtual double getEmittingPower() const = 0;
    virtual void setEmittingPower(double power) = 0;

protected:
    // Nodes die by Release only.
    virtual ~ILeafNode() {}
};

// Geometry of a chess node.
enum EChessGeometry { eChessCylinder = 0, eChessSphere = 1, eChessCube = 2 };

// Two children, child 0 and child 1, laid out in a pattern.
class ZEL_API IChessNode {
public:
    virtual ITCENode* asNode() = 0;
    virtual const ITCENode* asNode() const = 0;
    virtual const CZelVector* getOrigin() const = 0;
    virtual void setOrigin(const CZelVector& origin) = 0;
    virtual const CZelVector* getXAxis() const = 0;
    virtual void setXAxis(const CZelVector& axis) = 0;
    virtual const CZelVector* getYAxis() const = 0;
    virtual void setYAxis(const CZelVector& axis) = 0;
    virtual const CZelVector* getZAxis() const = 0;
    virtual void setZAxis(const CZelVector& axis) = 0;
    virtual const CZelVector* getSize() const = 0;
    virtual void setSize(const CZelVector& size) = 0;
    virtual const CZelVector* getProportion() const = 0;
    virtual void setProportion(const CZelVector& proportion) = 0;
    virtual bool isChecker() const = 0;
    virtual void setChecker(bool checker) = 0;
    virtual bool isSmooth() const = 0;
    virtual void setSmooth(bool smooth) = 0;
    // One of EChessGeometry.
    virtual int getGeometry() const = 0;
    virtual void setGeometry(int geometry) = 0;
    // The node's own tables, alive as long as the node.
    virtual ITable* getTable1() = 0;
    virtual const ITable* getTable1() const = 0;
    virtual ITable* getTable2() = 0;
    virtual const ITable* getTable2() const = 0;
    virtual ITable* getTable3() = 0;
    virtual const ITable* getTable3() const = 0;

protected:
    virtual ~IChessNode() {}
};

// Distorts what lies under it, child 0.
class ZEL_API ITurbulenceNode {
public:
    virtual ITCENode* asNode() = 0;
    virtual const ITCENode* asNode() const = 0;
    virtual const CZelVector* getOrigin() const = 0;
    virtual void setOrigin(const CZelVector& origin) = 0;
    virtual const CZelVector* getAmplitude() const = 0;
    virtual void setAmplitude(const CZelVector& amplitude) = 0;
    virtual const CZelVector* getDirection() const = 0;
    virtual void setDirection(const CZelVector& direction) = 0;
    virtual double getSize() const = 0;
    virtual void setSize(double size) = 0;
    virtual ITable* getTable() = 0;
    virtual const ITable* getTable() const = 0;

protected:
    virtual ~ITurbulenceNode() {}
};

// Reflection by angle over child 0.
class ZEL_API IFresnelNode {
public:
    virtual ITCENode* asNode() = 0;
    virtual const ITCENode* asNode() const = 0;
    virtual double getMinReflection() const = 0;
    // Clipped to 0 .. 1, with a report.
    virtual void setMinReflection(double reflection) = 0;
    virtual double getPowerFactor() const = 0;
    virtual void setPowerFactor(double factor) = 0;

protected:
    virtual ~IFresnelNode() {}
};

// Glass panes over child 0.
class ZEL_API IGlazingNode {
public:
    virtual ITCENode* asNode() = 0;
    virtual const ITCENode* asNode() const = 0;
    virtual double getXScale() const = 0;
    virtual void setXScale(double scale) = 0;
    virtual double getYScale() const = 0;
    virtual void setYScale(double scale) = 0;
    virtual double getFlatness() const = 0;
    virtual void setFlatness(double flatness) = 0;
    virtual bool isTiltDetect() const = 0;
    virtual void setTiltDetect(bool detect) = 0;
    virtual double getTiltFactor() const = 0;
    virtual void setTiltFactor(double factor) = 0;
    virtual bool isAnimation() const = 0;
    virtual void setAnimation(bool animation) = 0;
    virtual double getSpeed() const = 0;
    virtual void setSpeed(double speed) = 0;
    // Kept for the host, never written to a file.
    virtual void setExtraValue(double value) = 0;
    virtual double getExtraValue() const = 0;

protected:
    virtual ~IGlazingNode() {}
};

// Opaque data of a host: an XML tree owned by the node, rooted at Custom.Data.
class ZEL_API ICustomNode {
public:
    virtual ITCENode* asNode() = 0;
    virtual const ITCENode* asNode() const = 0;
    // The attribute Class of Custom.Data; null, with a report, when it is missing.
    virtual const char* getClass() const = 0;
    // Stores the class when the attribute exists; reports an integrity message in any
    // case, also after success.
    virtual void setClass(const char* name) = 0;
    // The element Custom.Data.
    virtual KestraXML::XIXMLElement* getCustomData() = 0;
    virtual const KestraXML::XIXMLElement* getCustomData() const = 0;

protected:
    virtual ~ICustomNode() {}
};

} // namespace KeZel

#endif
