// Streams over strings, a parser that writes its events down, and a data block provider,
// shared by the XML engine's tests.
#pragma once

#include "xml/XMLParser.h"
#include "xml/XMLTree.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <set>
#include <string>

namespace XmlTest {

using namespace KestraXML;

// Delivers the text; at most `mMaxRead` bytes per call when that is set.
class StringReader : public CXMLReadStream {
public:
    explicit StringReader(std::string text, size_t maxRead = 0) : mText(std::move(text)), mMaxRead(maxRead) {}
    int Read(void* buffer, int length) override {
        size_t count = std::min(static_cast<size_t>(length), mText.size() - mPosition);
        if (mMaxRead) count = std::min(count, mMaxRead);
        std::memcpy(buffer, mText.data() + mPosition, count);
        mPosition += count;
        return static_cast<int>(count);
    }
    std::string mText;
    size_t mMaxRead;
    size_t mPosition = 0;
};

// Collects what is written; accepts no more than `mLimit` bytes in all when that is set.
class StringWriter : public XIXMLWriteStream {
public:
    int Write(const void* buffer, int length) override {
        size_t count = static_cast<size_t>(length);
        if (mLimit >= 0) count = std::min(count, static_cast<size_t>(mLimit) - mText.size());
        mText.append(static_cast<const char*>(buffer), count);
        return static_cast<int>(count);
    }
    std::string mText;
    long mLimit = -1;
};

// Writes its content as a CDATA block; counts its own destruction.
class TestProvider : public XIXMLData::IXMLCData {
public:
    TestProvider(std::string content, int* destroyed) : mContent(std::move(content)), mDestroyed(destroyed) {}
    bool Write(XIXMLWriteStream* stream, int, XIXMLData*) override {
        return mOk && stream->Write(mContent.data(), static_cast<int>(mContent.size())) ==
                          static_cast<int>(mContent.size());
    }
    IXMLCData* Clone(XIXMLElement* element) override {
        mClonedFor = element;
        return new TestProvider(mContent, mDestroyed);
    }
    void Destroy() override {
        if (mDestroyed) ++*mDestroyed;
        delete this;
    }
    std::string mContent;
    int* mDestroyed;
    bool mOk = true;
    XIXMLElement* mClonedFor = nullptr;
};

// Writes each event down in a compact form.
class Recorder : public CXMLParser {
public:
    void Comment(const char* text) override { mLog += "C(" + std::string(text) + ")"; }
    bool ProcessingInstruction(const char* target, const char* data) override {
        mLog += "P(" + std::string(target) + "|" + data + ")";
        return !mStopAtPI;
    }
    void DocType(const char* name, const char* publicId, const char* systemId, const char* subset) override {
        mLog += "D(" + std::string(name) + "|" + (publicId ? publicId : "-") + "|" +
                (systemId ? systemId : "-") + "|" + subset + ")";
    }
    void* StartElement(const char* name) override {
        mLog += "<" + std::string(name);
        return mSkip.count(name) ? nullptr : this;
    }
    void Attribute(const char* name, const char* value) override {
        mLog += " " + std::string(name) + "=" + value;
    }
    void Text(const char* text) override { mLog += "T(" + std::string(text) + ")"; }
    void EndElement(void* handle) override { mLog += handle ? "/>" : "/0>"; }
    bool ResolveEntity(const char* name, char* buffer, int) override {
        mLog += "R(" + std::string(name) + ")";
        std::strcpy(buffer, "resolved");
        return true;
    }
    std::string mLog;
    std::set<std::string> mSkip;
    bool mStopAtPI = false;
};

// The events of parsing `xml`, ending in "!<message>" when the parse raised.
inline std::string Events(const std::string& xml, bool selective = false, std::set<std::string> skip = {}) {
    Recorder recorder;
    recorder.mSkip = std::move(skip);
    StringReader stream(xml);
    try {
        if (selective)
            recorder.ParseSelective(&stream);
        else
            recorder.Parse(&stream);
    } catch (const std::exception& e) {
        recorder.mLog += "!" + std::string(e.what());
    }
    return recorder.mLog;
}

inline std::unique_ptr<XCXMLTree> ReadTree(const std::string& xml, IXMLCDataReader* blocks = nullptr) {
    CXMLTreeReader reader(blocks);
    StringReader stream(xml);
    return std::unique_ptr<XCXMLTree>(reader.Read(&stream));
}

inline std::string Written(XIXMLElement* element) {
    StringWriter out;
    element->Write(&out);
    return out.mText;
}

} // namespace XmlTest
