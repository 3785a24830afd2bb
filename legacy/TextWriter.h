// Writer of the legacy text forms: the mirror image of CReader. Numbers are written by
// hand, so that every locale gives the same six-decimal text.
#pragma once

#include "frame/ZelTypes.h"

#include <vector>

namespace KeZel {

class CZEL;
class CZelStream;

class CWriter {
public:
    // A null scene writes vectors in x y z order. A null stream writes nothing: the
    // stanza writers raise their own message before that can happen.
    CWriter(CZelStream* stream, CZEL* scene) : mStream(stream), mScene(scene) {}

    // Each answers the number of bytes written.
    // "Y " or "N ".
    virtual int WriteBool(bool b);
    // With `withCount` the count first; each value as WriteDouble; then a line feed.
    virtual int WriteFloats(const float* table, int count, bool withCount);
    // The text as it stands; null writes nothing.
    virtual int WriteString(const char* text);
    // Decimal text and a blank.
    virtual int WriteInt(int i);
    // At least one and at most six decimals, then a blank: "0.5 ", "1.0 ", "1.234568 ".
    virtual int WriteDouble(double d);
    // Bytes 1 to 3 as signed integers.
    virtual int WriteSignedColor(const unsigned char* bytes);
    // Bytes 1 to 3 as unsigned integers.
    virtual int WriteColor(const unsigned char* bytes);
    // x y z; x z y for a client of the old orientation.
    virtual int WriteVector(const double* v);
    virtual ~CWriter() {}

    int WriteFloats(const std::vector<float>& table, bool withCount) {
        return WriteFloats(table.data(), static_cast<int>(table.size()), withCount);
    }
    int WriteColor(const CZelColor& color) { return WriteColor(&color.mSpare); }
    int WriteSignedColor(const CZelColor& color) { return WriteSignedColor(&color.mSpare); }

    CZelStream* getStream() const { return mStream; }
    CZEL* getScene() const { return mScene; }

    // The text WriteDouble gives for `d` into `out` (at least 64 bytes), no terminator;
    // answers its length.
    static int FormatDouble(double d, char* out);

protected:
    int Put(const char* bytes, int size);

    CZelStream* mStream;
    CZEL* mScene;
};

} // namespace KeZel
