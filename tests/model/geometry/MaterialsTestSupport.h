// Shared pieces of the material tests: a manager with a collecting feedback, and XML text
// in and out of element trees.
#pragma once

#include "frame/CZEL.h"
#include "support/SceneFixture.h"
#include "frame/StreamAdapters.h"
#include "frame/ZelHost.h"
#include "xml/XMLParser.h"
#include "xml/XMLTree.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace MaterialsTest {

inline std::string Bytes(KestraXML::XIXMLElement* e) {
    return ZelTest::SceneFixture::text(e);
}

inline std::unique_ptr<KestraXML::XCXMLTree> Parse(const std::string& text) {
    KeZel::CZelMemoryStream stream(text);
    KeZel::CZELXMLReadStream in(&stream);
    KestraXML::CXMLTreeReader reader;
    return std::unique_ptr<KestraXML::XCXMLTree>(reader.Read(&in));
}

// The first element of a parsed document.
inline KestraXML::XIXMLElement* Top(const std::unique_ptr<KestraXML::XCXMLTree>& tree) {
    return tree->GetRoot()->GetFirstElement();
}

inline KeZel::CZelColor Color(int r, int g, int b) {
    return KeZel::ZelRGB(static_cast<unsigned char>(r), static_cast<unsigned char>(g),
                         static_cast<unsigned char>(b));
}

inline bool Same(KeZel::CZelColor a, KeZel::CZelColor b) {
    return a.mRed == b.mRed && a.mGreen == b.mGreen && a.mBlue == b.mBlue;
}

class Materials : public ::testing::Test {
protected:
    explicit Materials(KeZel::EVersionZEL version = KeZel::eZelVersionCurrent)
        : mMgr(&mFeedback, nullptr, version) {}
    KeZel::CZEL* zel() const { return static_cast<KeZel::CZEL*>(mMgr.get()); }

    KeZel::CZelReportCollector mFeedback;
    KeZel::CZelMgrHandle mMgr;
};

} // namespace MaterialsTest
