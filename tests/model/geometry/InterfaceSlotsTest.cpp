// A host calls the model by slot number, so the order of declaration is the interface.
// These tests read the slot of each operation out of its member pointer (Itanium C++ ABI,
// as GCC and Clang use on this platform) and compare it with the order of the published
// tables, for the largest interfaces and for those whose destructor is not last.
#include "frame/RefCounted.h"
#include "frame/ZelFrontier.h"
#include "model/geometry/IZelMappingNode.h"
#include "model/geometry/IZelProceduralNodes.h"
#include "model/geometry/IZelProperty.h"
#include "model/light/IZelHeliodon.h"
#include "model/light/IZelHeliodonOpt.h"
#include "model/light/IZelLight.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <type_traits>
#include <vector>

using namespace KeZel;

namespace {

// A virtual destructor takes two slots: the complete and the deleting destructor.
const long kDestructorSlots = 2;

template <class P> long SlotOf(P member) {
    struct Representation {
        std::ptrdiff_t mPointer;
        std::ptrdiff_t mAdjust;
    } r;
    static_assert(sizeof(P) == sizeof(Representation), "not an Itanium member pointer");
    std::memcpy(&r, &member, sizeof r);
#if defined(__arm__) || defined(__aarch64__)
    // The ARM variant flags a virtual function in the adjustment.
    return (r.mAdjust & 1) ? long(r.mPointer / sizeof(void*)) : -1;
#else
    return (r.mPointer & 1) ? long((r.mPointer - 1) / sizeof(void*)) : -1;
#endif
}

template <class... P> std::vector<long> Slots(P... members) {
    return {SlotOf(members)...};
}

std::vector<long> Sequence(long first, long count) {
    std::vector<long> v;
    for (long i = 0; i < count; ++i) v.push_back(first + i);
    return v;
}

// Pick one form of an overloaded operation.
template <class C, class R, class... A> auto Plain(R (C::*p)(A...)) -> R (C::*)(A...) {
    return p;
}
template <class C, class R, class... A> auto Const(R (C::*p)(A...) const) -> R (C::*)(A...) const {
    return p;
}

} // namespace

TEST(InterfaceSlots, MappingNodeFollowsItsTable) {
#define M(name) &IMappingNode::name
    std::vector<long> slots = Slots(
        Plain(M(asNode)), Const(M(asNode)), M(getURL), M(setURL), M(isShader), M(setShader),
        M(getMapLinkedCount), M(getMapLinked), M(addLinkedMap), M(removeLinkedMap), M(getNormal),
        M(setNormal), M(getOrigin), M(setOrigin), M(getXAxis), M(setXAxis), M(getYAxis), M(setYAxis),
        M(getAngle), M(setAngle), M(getHeight), M(setHeight), M(getWidth), M(setWidth), M(getBump),
        M(setBump), M(getXCenter), M(setXCenter), M(getYCenter), M(setYCenter), M(getXDelta), M(setXDelta),
        M(getYDelta), M(setYDelta), M(getGlossy), M(setGlossy), M(isXRepeat), M(setXRepeat), M(isYRepeat),
        M(setYRepeat), M(getSpecular), M(setSpecular), M(getTransparent), M(setTransparent), M(getReflection),
        M(setReflection), M(getReflectionLimit), M(setReflectionLimit), M(isCutSet), M(setCutSet),
        M(isUseCutOut1), M(setUseCutOut1), M(getCutOut1), M(setCutOut1), M(isUseCutOut2), M(setUseCutOut2),
        M(getCutOut2), M(setCutOut2), M(isXInvert), M(setXInvert), M(isYInvert), M(setYInvert),
        M(getProjection), M(setProjection), M(isPlanar), M(setPlanar), M(isVisible), M(setVisible), M(isMix),
        M(setMix), M(getMixColor), M(setMixColor), M(getMixValue), M(setMixValue), M(getAngularLODShift),
        M(setAngularLODShift), M(getLinearLODShift), M(setLinearLODShift), M(isCutAlpha), M(setCutAlpha),
        M(isXMirror), M(setXMirror), M(isYMirror), M(setYMirror), M(isAlphaBump), M(setAlphaBump),
        M(isAlphaTransparency), M(setAlphaTransparency), M(isMIPMAP), M(setMIPMAP), M(isTrilinearFilter),
        M(setTrilinearFilter), M(setDisplayMode), M(isDisplayMode), M(getBrightness), M(setBrightness),
        M(getContrast), M(setContrast), M(getFrame), M(setFrame), M(getMovieLength), M(setMovieLength),
        M(getNormalMap), M(setNormalMap), M(getMappingNodeId), M(setMappingNodeId), M(getMappingNodeParentId),
        M(setMappingNodeParentId), M(putInXML), M(initWithXML));
#undef M
    EXPECT_EQ(slots, Sequence(0, 110));
    // The destructor is last and protected: nodes die by Release.
    EXPECT_TRUE(std::has_virtual_destructor<IMappingNode>::value);
    EXPECT_FALSE((std::is_destructible<IMappingNode>::value));
}

TEST(InterfaceSlots, PropertyFollowsItsTable) {
#define P(name) &CZelProperty::name
    std::vector<long> slots = Slots(
        P(getName), P(setName), P(isVisible), P(setVisible), P(isCastShadow), P(setCastShadow), P(getSmooth),
        P(setSmooth), P(getScale), P(setScale), P(getDiffuseColor), P(setDiffuseColor), P(getSpecularColor),
        P(setSpecularColor), P(getGlossy), P(setGlossy), P(getTransparentColor), P(setTransparentColor),
        P(getReflectionColor), P(setReflectionColor), P(getDiffuseMap), P(setDiffuseMap), P(getMapProjection),
        P(setMapProjection), P(getMapAxes), P(setMapAxes), P(getMapTransparentColor),
        P(setMapTransparentColor), P(getMapRepeat), P(setMapRepeat), P(getMapInvert), P(setMapInvert),
        P(getMapSize), P(setMapSize), Const(P(getTCE)), Plain(P(getTCE)), P(getMapAngle), P(setMapAngle),
        P(copyFrom), P(isBillboard), P(setBillboard), P(getGlossyValue), P(getNeonColor), P(setNeonColor),
        P(getNeonValue), P(setNeonValue), P(getRefraction), P(setRefraction), P(putInXML), P(initWithXML),
        P(getId), P(setId), P(getOverloadPropIndex), P(setOverloadPropIndex), P(getOverloadId),
        P(setOverloadId), P(isReceiveShadow), P(setReceiveShadow), P(isUVDefined), P(setUVDefined),
        P(getAngularLODShift), P(setAngularLODShift), P(getLinearLODShift), P(setLinearLODShift),
        P(getCutAlpha), P(setCutAlpha), P(getReflectionLimit), P(setReflectionLimit), P(getEmittingColor),
        P(setEmittingColor), P(getEmittingPower), P(setEmittingPower), P(setDisplayMode), P(getDisplayMode),
        P(getUIValue), P(setUIValue), P(getNormalMapPower), P(setNormalMapPower), P(getNormalMap),
        P(setNormalMap));
#undef P
    EXPECT_EQ(slots, Sequence(0, 80));

    EXPECT_EQ(Slots(&CZelTCE::getURL, &CZelTCE::setURL, &CZelTCE::getShaderId, &CZelTCE::setShaderId,
                    Plain(&CZelTCE::getShaderNames), Const(&CZelTCE::getShaderNames),
                    Plain(&CZelTCE::getRootNode), Const(&CZelTCE::getRootNode), &CZelTCE::createNode),
              Sequence(0, 9));
}

// The counted interfaces have no destructor of their own: the counting implementation's
// comes behind the frontier's three reserved slots, and an implementation's own first
// virtual behind that.
struct NodeProbe : TZelRefCount<TZelFrontier<ITCENode>> {
    virtual void probe() = 0;
};
struct TableProbe : TZelRefCount<TZelFrontier<ITable>> {
    virtual void probe() = 0;
};

TEST(InterfaceSlots, CountedInterfacesEndWithTheFrontier) {
    std::vector<long> slots =
        Slots(&ITCENode::AddRef, &ITCENode::Release, &ITCENode::getParent, &ITCENode::setParent,
              &ITCENode::getChildCount, Const(&ITCENode::getChild), Plain(&ITCENode::getChild),
              &ITCENode::setChild, &ITCENode::addChild, &ITCENode::removeChild, &ITCENode::getId,
              &ITCENode::setId, &ITCENode::getUIValue, &ITCENode::setUIValue, &ITCENode::getKind,
              &ITCENode::asRoot, &ITCENode::asChess, &ITCENode::asMapping, &ITCENode::asTurbulence,
              &ITCENode::asLeaf, &ITCENode::asFresnel, &ITCENode::asGlazing, &ITCENode::asCustom,
              &ITCENode::asReserved1, &ITCENode::asReserved2, &ITCENode::asReserved3, &ITCENode::asReserved4);
    EXPECT_EQ(slots, Sequence(0, 27));
    EXPECT_EQ(SlotOf(&NodeProbe::probe), 27 + 3 + kDestructorSlots);

    EXPECT_EQ(Slots(&ITable::AddRef, &ITable::Release, &ITable::getLength, &ITable::setLength,
                    &ITable::getValue, &ITable::setValue),
              Sequence(0, 6));
    EXPECT_EQ(SlotOf(&TableProbe::probe), 6 + 3 + kDestructorSlots);

    EXPECT_FALSE(std::has_virtual_destructor<ITCENode>::value);
    EXPECT_FALSE(std::has_virtual_destructor<ITable>::value);
}

TEST(InterfaceSlots, LightAndHeliodonKeepTheirDestructorsInPlace) {
#define L(name) &CZelLight::name
    std::vector<long> light =
        Slots(L(getName), L(setName), L(getType), L(setType), L(isActive), L(setActive), L(getColor),
              L(setColor), L(getPower), L(setPower), L(getDistanceNear), L(setDistanceNear),
              L(getDistanceFar), L(setDistanceFar), L(getPosition), L(setPosition), L(getTarget),
              L(setTarget), L(getConeAngle), L(setConeAngle), L(getSharpness), L(setSharpness),
              L(getShadowType), L(setShadowType), L(getShadowPower), L(setShadowPower), L(getMapSize),
              L(setMapSize), L(getBias), L(setBias), L(isGlobalIllumination), L(setGlobalIllumination),
              L(getGlobalIlluminationPower), L(setGlobalIlluminationPower), L(getGlobalIlluminationQuality),
              L(setGlobalIlluminationQuality), L(putInXML), L(initWithXML), L(isLocked), L(setLocked),
              L(getUIValue), L(setUIValue), Plain(L(getLightsGroups)), Const(L(getLightsGroups)),
              Plain(L(getLensFlare)), Const(L(getLensFlare)), L(isRadiosity), L(setRadiosity), L(getUUID),
              L(setUUID), L(getTargetType), L(setTargetType), L(getObjectId), L(setObjectId));
#undef L
    EXPECT_EQ(light, Sequence(0, 54));
    // IES comes after the destructor.
    EXPECT_EQ(Slots(&CZelLight::getIES, &CZelLight::setIES), Sequence(54 + kDestructorSlots, 2));

    // Clouds: the wind comes after the destructor.
    EXPECT_EQ(SlotOf(&IZelClouds::initWithXML), 19);
    EXPECT_EQ(SlotOf(&IZelClouds::isActiveWind), 20 + kDestructorSlots);
    EXPECT_EQ(SlotOf(&IZelClouds::setExtraValue), 27 + kDestructorSlots);

#define H(name) &CZelHeliodon::name
    std::vector<long> heliodon = Slots(
        H(isActive), H(setActive), Plain(H(getTime)), Const(H(getTime)), Plain(H(getPlace)),
        Const(H(getPlace)), H(getSunshine), H(setSunshine), H(getNorthAngle), H(setNorthAngle), H(isShadow),
        H(setShadow), H(getShadowPower), H(setShadowPower), H(getShadowBlur), H(setShadowBlur),
        H(isGlobalIllumination), H(setGlobalIllumination), H(getGlobalIlluminationPower),
        H(setGlobalIlluminationPower), H(getGlobalIlluminationQuality), H(setGlobalIlluminationQuality),
        H(putInXML), H(initWithXML), H(getName), H(setName), Plain(H(getLensFlare)), Const(H(getLensFlare)),
        H(isColored), H(setColored), H(getColor), H(setColor), H(isRadiosity), H(setRadiosity),
        Plain(H(getSkylight)), Const(H(getSkylight)), H(getUUID), H(setUUID), H(getPlacementKind),
        H(setPlacementKind), H(getColorType), H(setColorType), H(getMiddleColor), H(setMiddleColor),
        H(getTheta), H(setTheta), H(getPhi), H(setPhi), Plain(H(getClouds)), Const(H(getClouds)),
        H(getCloudCoverage), H(setCloudCoverage), H(isCloudMaskSun), H(setCloudMaskSun), Plain(H(getFog)),
        Const(H(getFog)), H(isSunPowerFlag), H(setSunPowerFlag));
#undef H
    EXPECT_EQ(heliodon, Sequence(0, 58));

    // The animation options stand behind the six operations and the destructor of the view
    // options they derive from.
    EXPECT_EQ(SlotOf(&CZelHeliodonOpt::getFrequencyType), 6 + kDestructorSlots);
    EXPECT_EQ(SlotOf(&CZelHeliodonOpt::setAllRange), 6 + kDestructorSlots + 13);
}
