// A host calls the object model by vtable slot, so the position of every operation is
// part of the interface. These tests read the slot of each operation out of its member
// pointer and hold it against the documented order, and count each interface's slots by
// where an implementation's own first operation lands, behind the frontier.
#include "zel.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <initializer_list>

using namespace KeZel;

namespace {

#if defined(__GNUC__) && !defined(_MSC_VER)
const bool kItanium = true;
#else
const bool kItanium = false;
#endif

// Itanium C++ ABI: a destructor takes two slots (complete, deleting), and a pointer to a
// virtual member holds the byte offset of its slot, plus one on x86, or with the virtual
// flag in the adjustment on ARM. Answers -1 for a pointer that isn't virtual.
template <class M> long slotOf(M member) {
#if defined(__GNUC__) && !defined(_MSC_VER)
    static_assert(sizeof(M) == 2 * sizeof(std::ptrdiff_t), "not an Itanium member pointer");
#endif
    std::ptrdiff_t words[2] = {0, 0};
    if (sizeof(M) != sizeof words) return -1;
    std::memcpy(words, &member, sizeof words);
#if defined(__arm__) || defined(__aarch64__)
    if (!(words[1] & 1)) return -1;
    return static_cast<long>(words[0] / static_cast<std::ptrdiff_t>(sizeof(void*)));
#else
    if (!(words[0] & 1)) return -1;
    return static_cast<long>((words[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*)));
#endif
}

const long kDestructorSlots = 2;

// An implementation's own first operation comes behind I's slots and the frontier's three.
template <class I> struct TProbe : TZelFrontier<I> {
    virtual void probe() {}
};

// The number of slots of I, destructor included.
template <class I> long slotCount() {
    return slotOf(&TProbe<I>::probe) - 3;
}

// Operations of I, given in documented order, must sit in consecutive slots from `first`.
void expectRun(std::initializer_list<long> slots, long first) {
    long expected = first;
    for (long slot : slots) {
        EXPECT_EQ(slot, expected) << "operation " << expected - first << " of the run from " << first;
        ++expected;
    }
}

// The const twin, then the mutable one, of a getter without arguments.
#define SC(R, name) slotOf(static_cast<const R* (T::*)() const>(&T::name))
#define SM(R, name) slotOf(static_cast<R* (T::*)()>(&T::name))
#define S(name) slotOf(&T::name)

} // namespace

TEST(InterfaceSlots, SlotCountsOfEveryInterface) {
    if (!kItanium) GTEST_SKIP() << "slot layout read under the Itanium ABI only";
    const long d = kDestructorSlots;
    // Views and rendering.
    EXPECT_EQ(slotCount<CZelRenderingOpt>(), 64 + d);
    EXPECT_EQ(slotCount<CZelCompressionOpt>(), 12 + d);
    EXPECT_EQ(slotCount<IZelViewOpt>(), 6 + d);
    EXPECT_EQ(slotCount<IZelParallelViewsOpt>(), 10 + d);
    EXPECT_EQ(slotCount<CZelPanoramaRenderingOpt>(), 6 + d);
    EXPECT_EQ(slotCount<IZelViewInfo>(), 38 + d);
    EXPECT_EQ(slotCount<IZelDepthOfField>(), 12 + d);
    EXPECT_EQ(slotCount<IZelClippingBox>(), 14 + d);
    EXPECT_EQ(slotCount<IZelFilters>(), 10 + d);
    EXPECT_EQ(slotCount<IZelImageSettingsFilter>(), 14 + d);
    EXPECT_EQ(slotCount<IZelGrainFilter>(), 8 + d);
    EXPECT_EQ(slotCount<IZelExposureFilter>(), 8 + d);
    EXPECT_EQ(slotCount<IZelHatchingFilter>(), 12 + d);
    EXPECT_EQ(slotCount<IZelRendererInfo>(), 6 + d);
    EXPECT_EQ(slotCount<CZelCamera>(), 30 + d);
    EXPECT_EQ(slotCount<CZelCameraExObsolete>(), 10 + d);
    EXPECT_EQ(slotCount<IZelParallelView>(), 22 + d);
    EXPECT_EQ(slotCount<IZelPanorama>(), 18 + d);
    EXPECT_EQ(slotCount<IZelPanoNode>(), 24 + d);
    EXPECT_EQ(slotCount<CZelPanoLink>(), 8 + d);
    EXPECT_EQ(slotCount<CZelPanoLinkConfig>(), 12 + d);
    EXPECT_EQ(slotCount<IZelAnimation>(), 10 + d);
    EXPECT_EQ(slotCount<IZelCameraPath>(), 26 + d);
    EXPECT_EQ(slotCount<CZelCamKey>(), 26 + d);
    EXPECT_EQ(slotCount<CZelViewObject>(), 34 + d);
    // Objects.
    EXPECT_EQ(slotCount<IZelZelObjectDefinition>(), 52 + d);
    EXPECT_EQ(slotCount<IZelZelObjectSetup>(), 4 + d);
    EXPECT_EQ(slotCount<IZelObjectInstance>(), 59 + d + 4);
    EXPECT_EQ(slotCount<IZelInternalComponentInstance>(), 6 + d);
    EXPECT_EQ(slotCount<IZelZelObjectInstance>(), 10 + d);
    EXPECT_EQ(slotCount<IZelBBMgrData>(), 9 + d);
    EXPECT_EQ(slotCount<IZelBillboard>(), 12 + d);
    EXPECT_EQ(slotCount<IZelBillboard::IZelBBName>(), 4 + d);
    EXPECT_EQ(slotCount<IZelQuad>(), 4 + d);
    EXPECT_EQ(slotCount<IZelTexture>(), 18 + d);
    EXPECT_EQ(slotCount<IZel3DPlant::IPlantSetUp>(), 8 + d);
    EXPECT_EQ(slotCount<IZelInsertionObject>(), 20 + d);
    EXPECT_EQ(slotCount<IZelLayer>(), 8 + d);
    EXPECT_EQ(slotCount<IZelLayerInfo>(), 6 + d);
    // Scenario animation.
    EXPECT_EQ(slotCount<IZelScenario>(), 24 + d);
    EXPECT_EQ(slotCount<IZelScenarioTimeGuide>(), 2 + d);
    EXPECT_EQ(slotCount<IZelSnd>(), 6 + d);
    EXPECT_EQ(slotCount<IZelSequence>(), 40 + d);
    EXPECT_EQ(slotCount<IZelAnimatedElement>(), 8 + d);
    EXPECT_EQ(slotCount<IZelInterpolatedValue>(), 14 + d);
    EXPECT_EQ(slotCount<IZelKeyFrame>(), 18 + d);
    EXPECT_EQ(slotCount<CZel3DPath>(), 8 + d);
    EXPECT_EQ(slotCount<CZelBezierPoint>(), 10 + d);
}

TEST(InterfaceSlots, RenderingOptionsFollowTheirTable) {
    if (!kItanium) GTEST_SKIP() << "slot layout read under the Itanium ABI only";
    typedef CZelRenderingOpt T;
    expectRun({S(isRaytracing),
               S(setRaytracing),
               S(isShadow),
               S(setShadow),
               S(isTransparency),
               S(setTransparency),
               S(isAlpha),
               S(setAlpha),
               S(getNbReflection),
               S(setNbReflection),
               S(getNbRefraction),
               S(setNbRefraction),
               S(getHeight),
               S(setHeight),
               S(getWidth),
               S(setWidth),
               S(getUrl),
               S(setUrl),
               S(getOutputType),
               S(setOutputType),
               S(getAntialias),
               S(setAntialias),
               S(isRenderAll),
               S(setRenderAll),
               S(getRenderFirst),
               S(setRenderFirst),
               S(getRenderLast),
               S(setRenderLast),
               S(isUseViewOptions),
               S(setUseViewOptions),
               S(isPreviewAntialias),
               S(setPreviewAntialias),
               S(isHeightWidthLinked),
               S(setHeightWidthLinked),
               S(isScaleOn),
               S(setScaleOn),
               S(getParallelScale),
               S(setParallelScale),
               S(getImageResolution),
               S(setImageResolution),
               S(getPanoramaResolution),
               S(setPanoramaResolution),
               S(isRadiosity),
               S(setRadiosity),
               S(getRadiosityFactor),
               S(setRadiosityFactor),
               S(getRadiosityQuality),
               S(setRadiosityQuality),
               S(getContrast),
               S(setContrast),
               S(getLuminosity),
               S(setLuminosity),
               S(getLongRange),
               S(setLongRange),
               S(getShortRange),
               S(setShortRange),
               S(getFirstBounce),
               S(setFirstBounce),
               S(getNextBounces),
               S(setNextBounces),
               S(getAttenuation),
               S(setAttenuation),
               S(getColorBleeding),
               S(setColorBleeding)},
              0);
}

TEST(InterfaceSlots, CameraAndItsOlderFace) {
    if (!kItanium) GTEST_SKIP() << "slot layout read under the Itanium ABI only";
    {
        typedef CZelCamera T;
        typedef const CZelCameraExObsolete* (T::*ConstEx)(int) const;
        typedef CZelCameraExObsolete* (T::*MutableEx)(int);
        expectRun({S(getName),
                   S(setName),
                   S(getPosition),
                   S(setPosition),
                   S(getTarget),
                   S(setTarget),
                   S(isCurrent),
                   S(setCurrent),
                   S(isFlagged),
                   S(setFlagged),
                   S(getRoll),
                   S(setRoll),
                   S(getFocal),
                   S(setFocal),
                   slotOf(static_cast<ConstEx>(&T::getCameraExObsolete)),
                   slotOf(static_cast<MutableEx>(&T::getCameraExObsolete)),
                   S(putInXML),
                   S(initWithXML),
                   S(getViewFlags),
                   S(setViewFlags),
                   SC(IZelViewInfo, getViewInfo),
                   SM(IZelViewInfo, getViewInfo),
                   SC(IZelViewOpt, getViewOpt),
                   SM(IZelViewOpt, getViewOpt),
                   SC(IZelInsertionObject, getInsertionObject),
                   SM(IZelInsertionObject, getInsertionObject),
                   S(getTargetType),
                   S(setTargetType),
                   S(getObjectId),
                   S(setObjectId)},
                  0);
    }
    {
        typedef CZelCameraExObsolete T;
        expectRun({S(getViewFlags), S(setViewFlags), S(getClearnessPoint), S(setClearnessPoint),
                   S(getDepthType), S(setDepthType), S(getClearnessDistInv), S(setClearnessDistInv),
                   S(getClearnessSizeInv), S(setClearnessSizeInv)},
                  0);
    }
}

TEST(InterfaceSlots, ObjectInstanceKeepsItsLaterOperationsBehindTheDestructor) {
    if (!kItanium) GTEST_SKIP() << "slot layout read under the Itanium ABI only";
    typedef IZelObjectInstance T;
    expectRun({S(putInXML),
               S(initWithXML),
               S(getName),
               S(setName),
               S(getClass),
               S(setClass),
               S(getId),
               S(setId),
               S(getAttachId),
               S(setAttachId),
               S(setTranslation),
               S(getTranslation),
               S(setRotation),
               S(getRotation),
               S(setScale),
               S(getScale),
               S(getTriangleCoord),
               S(setTriangleCoord),
               S(getTriangleId),
               S(setTriangleId),
               S(getNormal),
               S(setNormal),
               S(getAnchorPosition),
               S(setAnchorPosition),
               S(getUpVector),
               S(setUpVector),
               S(getPlacementProperty),
               S(setPlacementProperty),
               S(getInitialAngle),
               S(setInitialAngle),
               S(getBoundingBox),
               S(setBoundingBox),
               S(isCoordinatesLocked),
               S(setCoordinatesLocked),
               S(isScaleLocked),
               S(setScaleLocked),
               S(updateInstanceData),
               SC(KestraXML::XIXMLElement, getInstanceData),
               SM(KestraXML::XIXMLElement, getInstanceData),
               S(getUIValue),
               S(setUIValue),
               SC(IZelZelObjectInstance, getZelObjectInstance),
               SM(IZelZelObjectInstance, getZelObjectInstance),
               SC(IZel3DPlantRef, get3DPlantRef),
               SM(IZel3DPlantRef, get3DPlantRef),
               SC(IZelBBObjectInstance, getBBObjectInstance),
               SM(IZelBBObjectInstance, getBBObjectInstance),
               SC(IZelObjectLightRef, getObjectLightRef),
               SM(IZelObjectLightRef, getObjectLightRef),
               SC(IZelAnimatedObjectInstance, getAnimatedObjectInstance),
               SM(IZelAnimatedObjectInstance, getAnimatedObjectInstance),
               SC(IZelInternalComponentInstance, getInternalComponentInstance),
               SM(IZelInternalComponentInstance, getInternalComponentInstance),
               S(getAnimationBehavior),
               S(setAnimationBehavior),
               S(getCurrentPathDirection),
               S(setCurrentPathDirection),
               S(isTarget),
               S(setTarget)},
              0);
    expectRun({S(getTransparency), S(setTransparency), S(getLayerId), S(setLayerId)}, 59 + kDestructorSlots);
}

TEST(InterfaceSlots, SequenceAndViewInfoFollowTheirLists) {
    if (!kItanium) GTEST_SKIP() << "slot layout read under the Itanium ABI only";
    {
        typedef IZelSequence T;
        expectRun({S(putInXML),
                   S(initWithXML),
                   S(getStartFrame),
                   S(setStartFrame),
                   S(getEndFrame),
                   S(setEndFrame),
                   S(getName),
                   S(setName),
                   S(getPosition),
                   S(setPosition),
                   S(getTargetType),
                   S(setTargetType),
                   S(getTarget),
                   S(setTarget),
                   S(getTargetDistance),
                   S(setTargetDistance),
                   S(getHorizontalAngle),
                   S(setHorizontalAngle),
                   S(getVerticalAngle),
                   S(setVerticalAngle),
                   S(getCurrentPathTangent),
                   S(setCurrentPathTangent),
                   S(isCurrent),
                   S(setCurrent),
                   S(isFlagged),
                   S(setFlagged),
                   S(getViewFlags),
                   S(setViewFlags),
                   S(getRoll),
                   S(setRoll),
                   S(getFocal),
                   S(setFocal),
                   SC(IZelViewInfo, getViewInfo),
                   SM(IZelViewInfo, getViewInfo),
                   S(getUUID),
                   S(setUUID),
                   SC(IZelViewOpt, getViewOpt),
                   SM(IZelViewOpt, getViewOpt),
                   S(getObjectUUID),
                   S(setObjectUUID)},
                  0);
    }
    {
        typedef IZelViewInfo T;
        typedef TZelObjectMgr<CZelUUID> Ids;
        expectRun({S(getUUID),
                   S(setUUID),
                   S(isLocked),
                   S(setLocked),
                   S(getUIValue),
                   S(setUIValue),
                   SC(CZelBackground, getBackground),
                   SM(CZelBackground, getBackground),
                   SC(IZelForeground, getForeground),
                   SM(IZelForeground, getForeground),
                   SC(Ids, getLightsGroups),
                   SM(Ids, getLightsGroups),
                   S(getHeliodonName),
                   S(setHeliodonName),
                   SC(IZelCameraLight, getCameraLight),
                   SM(IZelCameraLight, getCameraLight),
                   SC(IZelCameraLight, getRadiosityLight),
                   SM(IZelCameraLight, getRadiosityLight),
                   SC(CZelAtmosphere, getAtmosphere),
                   SM(CZelAtmosphere, getAtmosphere),
                   SC(IZelDepthOfField, getDepthOfField),
                   SM(IZelDepthOfField, getDepthOfField),
                   SC(IZelRendererInfo, getRendererInfo),
                   SM(IZelRendererInfo, getRendererInfo),
                   SC(IZelClippingBox, getClippingBox),
                   SM(IZelClippingBox, getClippingBox),
                   S(getEnvironmentId),
                   S(setEnvironmentId),
                   SC(IZelFilters, getFilters),
                   SM(IZelFilters, getFilters),
                   SC(Ids, getNeonShaders),
                   SM(Ids, getNeonShaders),
                   SC(IZelBackgroundPicture, getBackgroundPicture),
                   SM(IZelBackgroundPicture, getBackgroundPicture),
                   S(putInXML),
                   S(initWithXML),
                   SC(Ids, getLayers),
                   SM(Ids, getLayers)},
                  0);
    }
}
