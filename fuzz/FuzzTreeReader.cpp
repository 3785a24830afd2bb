// The tree reader on arbitrary bytes, with a data block reader that reads a random amount
// of each block in pieces of random sizes, then a selective parse of the same bytes.
// Malformed input may only raise std::runtime_error. What reads is written out, and a
// copy of it into another tree must write the same bytes.
#include "xml/XMLParser.h"
#include "xml/XMLTree.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>

using namespace KestraXML;

namespace {

class MemoryReader : public CXMLReadStream {
public:
    MemoryReader(const uint8_t* data, size_t size) : mData(data), mLeft(size) {}
    int Read(void* buffer, int length) override {
        size_t count = mLeft < static_cast<size_t>(length) ? mLeft : static_cast<size_t>(length);
        std::memcpy(buffer, mData, count);
        mData += count;
        mLeft -= count;
        return static_cast<int>(count);
    }

private:
    const uint8_t* mData;
    size_t mLeft;
};

class StringWriter : public XIXMLWriteStream {
public:
    int Write(const void* buffer, int length) override {
        mText.append(static_cast<const char*>(buffer), static_cast<size_t>(length));
        return length;
    }
    std::string mText;
};

class Provider : public XIXMLData::IXMLCData {
public:
    explicit Provider(std::string block) : mBlock(std::move(block)) {}
    bool Write(XIXMLWriteStream* stream, int, XIXMLData*) override {
        return stream->Write(mBlock.data(), static_cast<int>(mBlock.size())) ==
               static_cast<int>(mBlock.size());
    }
    IXMLCData* Clone(XIXMLElement*) override { return new Provider(mBlock); }
    void Destroy() override { delete this; }

private:
    std::string mBlock;
};

// Reads up to a random amount in random pieces; keeps what it read as a provider.
class RandomBlockReader : public IXMLCDataReader {
public:
    explicit RandomBlockReader(uint32_t seed) : mSeed(seed | 1) {}
    bool Read(XIXMLElement* element, CXMLReadStream* stream, CXMLParser*) override {
        size_t budget = Random() % 3000;
        std::string block;
        char piece[1500];
        while (block.size() < budget) {
            int want = static_cast<int>(1 + Random() % sizeof piece);
            int count = stream->Read(piece, want);
            if (count < 0 || count > want) std::abort();
            block.append(piece, static_cast<size_t>(count));
            if (count < want) {
                if (stream->Read(piece, 1) != 0) std::abort();
                break;
            }
        }
        if (Random() % 2) {
            // A refused provider stays ours.
            std::unique_ptr<Provider> provider(new Provider(block));
            element->NewData(provider.get());
            provider.release();
        }
        return Random() % 16 != 0;
    }

private:
    uint32_t Random() {
        mSeed ^= mSeed << 13;
        mSeed ^= mSeed >> 17;
        mSeed ^= mSeed << 5;
        return mSeed;
    }
    uint32_t mSeed;
};

// Skips the elements whose name begins with the chosen byte.
class Selective : public CXMLParser {
public:
    explicit Selective(char skip) : mSkip(skip) {}
    void* StartElement(const char* name) override { return name[0] == mSkip ? nullptr : this; }
    void Attribute(const char*, const char*) override {}
    void Text(const char*) override {}
    void EndElement(void*) override {}

private:
    char mSkip;
};

std::string Written(XIXMLElement* element) {
    StringWriter out;
    element->Write(&out);
    return out.mText;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2) return 0;
    uint8_t mode = data[0];
    uint32_t seed = data[1] * 2654435761u;
    data += 2;
    size -= 2;

    RandomBlockReader blocks(seed);
    CXMLTreeReader reader((mode & 1) ? &blocks : nullptr);
    MemoryReader stream(data, size);
    std::unique_ptr<XCXMLTree> tree;
    try {
        tree.reset(reader.Read(&stream));
    } catch (const std::runtime_error&) {
    }
    if (tree) {
        // A tree that was read always writes, and its copy writes the same.
        std::string written = Written(tree->GetRoot());
        XCXMLTree copy;
        for (XIXMLNode* node = tree->GetRoot()->GetFirstNode(); node; node = node->GetNext())
            node->CopyTo(copy.GetRoot());
        if (Written(copy.GetRoot()) != written) std::abort();

        // Reading back what was written must not crash (it may refuse: a block in the
        // prolog comes back as text there).
        CXMLTreeReader again;
        MemoryReader back(reinterpret_cast<const uint8_t*>(written.data()), written.size());
        try {
            delete again.Read(&back);
        } catch (const std::runtime_error&) {
        }
    }

    Selective selective(static_cast<char>(mode >> 1));
    MemoryReader second(data, size);
    try {
        selective.ParseSelective(&second);
    } catch (const std::runtime_error&) {
    }
    return 0;
}
