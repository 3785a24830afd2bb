// Plain values that cross the library's boundary by copy. Public header, C++11.
#ifndef ZEL_FRAME_ZELTYPES_H
#define ZEL_FRAME_ZELTYPES_H

#include "foundation/Visibility.h"

namespace KeZel {

// Interface version a client was built against. This library is 21; it accepts 5..21.
enum EVersionZEL {
    eZelVersion5 = 5,
    eZelVersion6 = 6,
    eZelVersion7 = 7,
    eZelVersion8 = 8,
    eZelVersion9 = 9,
    eZelVersion10 = 10,
    eZelVersion11 = 11,
    eZelVersion12 = 12,
    eZelVersion13 = 13,
    eZelVersion14 = 14,
    eZelVersion15 = 15,
    eZelVersion16 = 16,
    eZelVersion17 = 17,
    eZelVersion18 = 18,
    eZelVersion19 = 19,
    eZelVersion20 = 20,
    eZelVersion21 = 21,
    eZelVersionCurrent = 21,
    eZelVersionForce32 = 0x7fffffff
};

// Version of the extended interface CZelMgrEx. This library is 6; it accepts 5..6.
enum EExtendedVersionZEL {
    eZelExtendedVersion5 = 5,
    eZelExtendedVersion6 = 6,
    eZelExtendedVersionCurrent = 6,
    eZelExtendedVersionForce32 = 0x7fffffff
};

// A library or file version: major.minor.patch, then 32 bytes carried untouched.
// A major of 0 means that no version was seen.
struct CZelVersion {
    int major;
    int minor;
    int patch;
    char mReserved[32];

    // Zeroes the three numbers only.
    CZelVersion() {
        major = 0;
        minor = 0;
        patch = 0;
    }
    CZelVersion(int a, int b, int c) {
        major = a;
        minor = b;
        patch = c;
        for (int i = 0; i < 32; ++i) mReserved[i] = 0;
    }
    int compare(const CZelVersion& other) const {
        if (major != other.major) return major < other.major ? -1 : 1;
        if (minor != other.minor) return minor < other.minor ? -1 : 1;
        if (patch != other.patch) return patch < other.patch ? -1 : 1;
        return 0;
    }
    bool operator<(const CZelVersion& o) const { return compare(o) < 0; }
    bool operator>(const CZelVersion& o) const { return compare(o) > 0; }
    bool operator<=(const CZelVersion& o) const { return compare(o) <= 0; }
    bool operator>=(const CZelVersion& o) const { return compare(o) >= 0; }
    bool operator==(const CZelVersion& o) const { return compare(o) == 0; }
    bool operator!=(const CZelVersion& o) const { return compare(o) != 0; }
};

// Verdict of zel_check_format2.
enum eReadability {
    eReadabilityNone = 0,
    eReadabilityOld = 1,
    eReadabilityPrevious = 2,
    eReadabilityCurrent = 3,
    eReadabilityNewer = 4,
    eReadabilityNewerUnsafe = 5,
    eReadabilityTooNew = 6,
    eReadabilityForeign = 7,
    eReadabilityForce32 = 0x7fffffff
};

// One row of the file type list.
struct CZelFileType {
    const char* mExtension; // with the leading point
    char mType[4];          // classic Mac file type, no terminator
    char mCreator[4];       // classic Mac creator code, no terminator
    int mRevision;
    const char* mDescription;
};

// A point or a direction in scene units.
struct CZelVector {
    double x;
    double y;
    double z;
};

// A point on a picture or a panorama: hotspots, insertion tool positions.
struct CZelVector2D {
    double x;
    double y;
};

// A colour: a spare byte first, then red, green, blue.
struct CZelColor {
    unsigned char mSpare;
    unsigned char mRed;
    unsigned char mGreen;
    unsigned char mBlue;
};

// 16 bytes of identity; all zero is the null identity. Text form: 32 upper-case
// hexadecimal digits, byte 0 first.
struct CZelUUID {
    unsigned char mBytes[16];

    bool isNull() const {
        for (int i = 0; i < 16; ++i)
            if (mBytes[i]) return false;
        return true;
    }
    bool operator==(const CZelUUID& o) const {
        for (int i = 0; i < 16; ++i)
            if (mBytes[i] != o.mBytes[i]) return false;
        return true;
    }
    bool operator!=(const CZelUUID& o) const { return !(*this == o); }
    bool operator<(const CZelUUID& o) const {
        for (int i = 0; i < 16; ++i)
            if (mBytes[i] != o.mBytes[i]) return mBytes[i] < o.mBytes[i];
        return false;
    }
};

// One corner of a polygon or a hole.
struct CZelVertex {
    int mPointIndex;     // into the scene's point table
    unsigned int mFlags; // bit 0: marker I; bit 1: own mapping coordinates (M)
    float mU;
    float mV;
};

enum { eZelVertexMarked = 1, eZelVertexMapped = 2 };

} // namespace KeZel

#endif
