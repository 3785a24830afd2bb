#include "codec/ZelXMLIO.h"
#include "frame/CZEL.h"
#include "support/TestSupport.h"
#include "xml/XMLInterfaces.h"
#include "zel.h"

using namespace KeZel;
using KestraXML::XIXMLElement;

namespace {

std::string Written(CZelMgr* mgr) {
    CZelMemoryStream out;
    EXPECT_EQ(mgr->write(&out), 0);
    return out.bytes();
}

} // namespace

TEST(SceneManager, CommentsLandBeforeTheRootInOrder) {
    CZelReportCollector feedback;
    CZelMgrHandle mgr(&feedback);
    EXPECT_EQ(mgr->getComment(0), nullptr);
    EXPECT_EQ(mgr->setComment(nullptr, 0), -1);
    EXPECT_EQ(mgr->setComment("x", 5), 0);
    EXPECT_EQ(mgr->setComment("y", 9), 1);
    EXPECT_STREQ(mgr->getComment(0), "x");
    EXPECT_STREQ(mgr->getComment(1), "y");
    EXPECT_EQ(mgr->getComment(2), nullptr);
    EXPECT_EQ(mgr->setComment("z", 1), 1); // replaces
    std::string text = Written(mgr.get());
    EXPECT_NE(text.find("<!--x-->\n<!--z-->\n<Zel.File>"), std::string::npos) << text;
    EXPECT_EQ(mgr->setComment(nullptr, 0), 0); // deletes
    EXPECT_STREQ(mgr->getComment(0), "z");
    EXPECT_TRUE(feedback.empty());
}

TEST(SceneManager, UrlApplicationDataLanguageAndTransform) {
    CZelReportCollector feedback;
    CZelMgrHandle mgr(&feedback);
    EXPECT_STREQ(mgr->getURL(), "");
    EXPECT_EQ(Written(mgr.get()).find("Save.Url"), std::string::npos); // asking created nothing
    mgr->setURL("file:///C|/a%20b.zel");
    mgr->setURL("file:///C|/c.zel");
    EXPECT_STREQ(mgr->getURL(), "file:///C|/c.zel");

    EXPECT_EQ(mgr->getApplicationData(""), nullptr);
    EXPECT_EQ(mgr->getApplicationData(nullptr), nullptr);
    EXPECT_EQ(feedback.last(), "Exception in CZelMgr::getApplicationData : Invalid application tag");
    XIXMLElement* host = mgr->getApplicationData("Host.Settings");
    ASSERT_NE(host, nullptr);
    EXPECT_EQ(mgr->getApplicationData("Host.Settings"), host);
    host->NewElement(host->GetKey("Grid"))->NewData("10");

    EXPECT_STREQ(mgr->getLanguage(), "en");
    mgr->setLanguage("fr");
    EXPECT_STREQ(mgr->getLanguage(), "fr");

    int major = 0, minor = 0;
    EXPECT_TRUE(mgr->getFileVersion(&major, &minor));
    EXPECT_TRUE(mgr->getFileVersion(nullptr, nullptr));
    EXPECT_EQ(major * 10 + minor, 51);

    CZEL* zel = static_cast<CZEL*>(mgr.get());
    CZelMgrEx* ex = mgr->getMgrEx(6);
    double identity[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    double fives[16];
    for (double& v : fives) v = 5.0;
    ex->setTransform(fives);
    EXPECT_FALSE(zel->hasTransform()); // no element agrees with the identity
    EXPECT_EQ(ex->getTransform()[15], 5.0);
    ex->setTransform(identity);
    EXPECT_TRUE(zel->hasTransform()); // kept as files have been read under it
    fives[6] = 0;
    ex->setTransform(fives);
    EXPECT_TRUE(zel->hasTransform());

    // The host's element comes back after a write and a read.
    CZelMemoryStream file(Written(mgr.get()));
    CZelMgrHandle back(&feedback);
    ASSERT_EQ(back->read(&file), 0);
    XIXMLElement* again = back->getApplicationData("Host.Settings");
    ASSERT_NE(again, nullptr);
    XIXMLElement* grid = again->FindElement(again->GetKey("Grid"));
    ASSERT_NE(grid, nullptr);
    EXPECT_STREQ(CZelXMLIO::textOf(grid), "10");
    EXPECT_STREQ(back->getURL(), "file:///C|/c.zel");
}

TEST(SceneManager, MediaInfoFillsTheObjectDefinitionsNamesOnly) {
    CZelReportCollector feedback;
    CZelMgrHandle mgr(&feedback);
    IZelString* names = mgr->getObjectDefinition()->getName();
    names->setText('e' * 256 + 'n', "Chair");
    names->setText('f' * 256 + 'r', "Chaise");
    mgr->getLights()->newZelObject(static_cast<unsigned int>(-1))->setName("Lamp");
    CZelMemoryStream file(Written(mgr.get()));

    CZelMgrHandle media(&feedback);
    EXPECT_EQ(media->readMediaInfo(&file), 0);
    const IZelString* read = media->getObjectDefinition()->getName();
    EXPECT_STREQ(read->findText('e' * 256 + 'n'), "Chair");
    EXPECT_STREQ(read->findText('f' * 256 + 'r'), "Chaise");
    EXPECT_EQ(media->getLights()->getCount(), 0u); // nothing else is read
    CZelMemoryStream junk("not a scene");
    EXPECT_EQ(media->readMediaInfo(&junk), 0);
    EXPECT_TRUE(feedback.empty());
}
