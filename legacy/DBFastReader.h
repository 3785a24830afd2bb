// The reader of the Points and Polygons data blocks of a scene file: the layout of the
// .db sections, read straight from the XML parser's block stream in large pieces. This
// is the hot path of loading a scene: a number costs a few compares per byte and no call.
//
// It differs from the token reader in what it accepts: white space is the four blanks
// with no '#' comment before a number (comments are taken before a polygon's type letter
// and a vertex's markers only), the words NaN and INF stand for +-1e30 with the warnings
// "NaN double." and "INF double.", and a number with a point where an integer is due is
// "This is not a integer". The end of the block inside a number ends the number.
#pragma once

#include <memory>

namespace KestraXML {
class CXMLReadStream;
}

namespace KeZel {

class CZEL;

class CDBFastReader {
public:
    enum { kBufferSize = 64 * 1024 };

    // A null stream raises "CDBIO::read() : no reader provided!".
    CDBFastReader(KestraXML::CXMLReadStream* stream, CZEL* zel);
    ~CDBFastReader();
    CDBFastReader(const CDBFastReader&) = delete;
    CDBFastReader& operator=(const CDBFastReader&) = delete;

    // The block, into the scene's table or, when the manager has one, into its storage.
    // Every point takes the axis rule on both paths.
    void readPoints();
    void readPolygons();

    // ---- The number primitives of the section readers
    int ReadInt();
    double ReadDouble();
    // The next byte past white space and '#' comments, consumed; -1 at the end.
    int ReadMarker();
    // Gives back the byte ReadMarker answered.
    void PutBack() { --mCursor; }

private:
    int Next() { return mCursor != mEnd ? *mCursor++ : Fill(); }
    int Fill();
    // The first byte that is not one of the four blanks, consumed; -1 at the end.
    int SkipBlanks();
    // NaN or INF, starting with `c`; raises "This is not a number" for anything else.
    double ReadWord(int c);

    KestraXML::CXMLReadStream* mStream;
    CZEL* mZel;
    const unsigned char* mCursor;
    const unsigned char* mEnd;
    bool mEof;
    std::unique_ptr<unsigned char[]> mBuffer;
};

} // namespace KeZel
