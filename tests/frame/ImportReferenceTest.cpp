#include "frame/ZelHost.h"
#include "support/TestSupport.h"
#include "zel.h"

#include <cstring>

using namespace KeZel;

namespace {
CZelLight* NewLight(CZelMgr* mgr, const char* name, double power) {
    CZelLight* light = mgr->getLights()->newZelObject(static_cast<unsigned int>(-1));
    light->setName(name);
    light->setPower(power);
    return light;
}
} // namespace

TEST(ImportReference, MergesByNameThroughTheXmlFormAndOnlyWhatIsAsked) {
    CZelReportCollector feedback;
    CZelMgrHandle target(&feedback), source(&feedback);
    NewLight(target.get(), "Lamp", 2);
    NewLight(target.get(), "Other", 3);
    CZelLight* lamp = NewLight(source.get(), "Lamp", 50);
    NewLight(source.get(), "New", 7);
    CZelProperty* brick = source->getProperties()->newZelObject(static_cast<unsigned int>(-1));
    brick->setName("Brick");
    brick->setDiffuseColor(CZelColor{0, 200, 10, 10});
    source->getCameras()->newZelObject(static_cast<unsigned int>(-1))->setName("Front");

    CZelMgr::doImportReference(target.get(), source.get(), 0x10);
    TZelObjectMgr<CZelLight>* lights = target->getLights();
    ASSERT_EQ(lights->getCount(), 3u); // Lamp overwritten, not duplicated; New appended
    EXPECT_STREQ(lights->getZelObject(0)->getName(), "Lamp");
    EXPECT_EQ(lights->getZelObject(0)->getPower(), 50);
    EXPECT_STREQ(lights->getZelObject(2)->getName(), "New");
    EXPECT_FALSE(*lights->getZelObject(2)->getUUID() == *lamp->getUUID());
    EXPECT_EQ(target->getProperties()->getCount(), 0u); // not asked
    EXPECT_EQ(target->getCameras()->getCount(), 0u);

    CZelMgr::doImportReference(target.get(), source.get(), 0x01 | 0x80 | 0x400 | 0x800);
    ASSERT_EQ(target->getProperties()->getCount(), 1u);
    CZelProperty* copy = target->getProperties()->getZelObject(0);
    EXPECT_EQ(copy->getDiffuseColor().mRed, 200);
    EXPECT_FALSE(*copy->getId() == *brick->getId()); // copies get identities of their own
    EXPECT_EQ(target->getCameras()->getCount(), 1u);
    // The source's panorama has no node, so nothing names it; it has no scenario either.
    EXPECT_EQ(target->getMgrEx(6)->getPanoramas()->getCount(), 1u);
    EXPECT_EQ(target->getScenarios()->getCount(), 0u);
    source->getScenarios()->newZelObject(static_cast<unsigned int>(-1))->setName("Walk");
    CZelMgr::doImportReference(target.get(), source.get(), 0x800);
    ASSERT_EQ(target->getScenarios()->getCount(), 1u);
    EXPECT_STREQ(target->getScenarios()->getZelObject(0)->getName(), "Walk");
    EXPECT_TRUE(feedback.empty()) << feedback.last();
}
