// Format detection without a manager: the small parsers that read a scene's version
// facts, its creator, its preview and its media information, each stopping as early as
// it can.
#pragma once

#include "frame/ZelTypes.h"
#include "xml/XMLParser.h"

#include <string>

namespace KeZel {

class CZelMgr;
class CZelImage;

// The two parsers that read a scene's instructions: reaching the root element means the
// instruction they look for is missing, and the other element events cannot be reached.
class CInstructionSniffer : public KestraXML::CXMLParser {
public:
    void* StartElement(const char* name) override;
    void Attribute(const char* name, const char* value) override;
    void Text(const char* text) override;
    void EndElement(void* handle) override;
};

// Version facts of a scene, from its "Zel" instruction; the parse stops there. A
// mLibrary.major of 0 afterwards means that the file has no usable instruction. The
// scene's read runs it too.
class CCheckZELFile : public CInstructionSniffer {
public:
    CCheckZELFile();

    bool ProcessingInstruction(const char* target, const char* data) override;

    // Reads the data of a "Zel" instruction, in the old decimal form or the current one
    // of triples.
    void Decode(const char* data);

    CZelVersion mLibrary;
    CZelVersion mMinVersion;
    CZelVersion mSafeVersion;
    int mFileMajor;
    int mFileMinor;
};

// The first word of the creator's name, from the "Application" instruction.
class CCheckZELCreatorFile : public CInstructionSniffer {
public:
    CCheckZELCreatorFile() {}

    bool ProcessingInstruction(const char* target, const char* data) override;

    std::string mCreator;
};

// The preview block, found only when "Preview.Image" is the first element of the root.
// Every other event ends the parse by raising, which is the normal way out.
class CReadPreviewImage : public KestraXML::CXMLParser {
public:
    CReadPreviewImage() : mImage(nullptr) {}
    ~CReadPreviewImage() override;

    void* StartElement(const char* name) override;
    void Attribute(const char* name, const char* value) override;
    void Text(const char* text) override;
    void CData(KestraXML::CXMLReadStream* stream) override;
    void EndElement(void* handle) override;

    // Hands the image over with one reference for the caller, or null.
    CZelImage* Take();

    CZelImage* mImage;
};

// The names of a manager's object definition, skipping everything else unread.
class CReadMediaInfo : public KestraXML::CXMLParser {
public:
    explicit CReadMediaInfo(CZelMgr* mgr)
        : mMgr(mgr), mInPreview(false), mInDefinition(false), mInName(false) {}

    void* StartElement(const char* name) override;
    void Attribute(const char* name, const char* value) override;
    void Text(const char* text) override;
    void CData(KestraXML::CXMLReadStream* stream) override;
    void EndElement(void* handle) override;

    CZelMgr* mMgr;
    bool mInPreview;
    bool mInDefinition;
    bool mInName;
};

} // namespace KeZel
