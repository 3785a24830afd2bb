// The axis rule: how a point read from a file, or made by the library itself, is turned
// into the client's convention. One place for the codec, the token readers and the
// geometry code.
#pragma once

namespace KeZel {

struct CAxisState {
    bool mOldClient;       // client built before version 8: Y is up in memory
    bool mConverting;      // reading a file older than 2.0.0, or legacy text
    bool mHasTransform;    // a global transform is in force
    const double* mMatrix; // 4 by 4, row by row
};

// Point import, applied to a point arriving from a file.
inline void AxisImport(const CAxisState& s, double& x, double& y, double& z) {
    if (!s.mOldClient) {
        if (s.mConverting) {
            double t = y;
            y = z;
            z = t;
        }
        if (s.mHasTransform) {
            const double* m = s.mMatrix;
            double nx = x * m[0] + y * m[1] + z * m[2] + m[3];
            double ny = x * m[4] + y * m[5] + z * m[6] + m[7];
            double nz = x * m[8] + y * m[9] + z * m[10] + m[11];
            x = nx;
            y = ny;
            z = nz;
        }
    } else if (!s.mConverting) {
        double t = y;
        y = z;
        z = t;
    }
}

// As AxisImport for a direction: a transform applies its rotation only.
inline void AxisImportDirection(const CAxisState& s, double& x, double& y, double& z) {
    if (!s.mOldClient) {
        if (s.mConverting) {
            double t = y;
            y = z;
            z = t;
        }
        if (s.mHasTransform) {
            const double* m = s.mMatrix;
            double nx = x * m[0] + y * m[1] + z * m[2];
            double ny = x * m[4] + y * m[5] + z * m[6];
            double nz = x * m[8] + y * m[9] + z * m[10];
            x = nx;
            y = ny;
            z = nz;
        }
    } else if (!s.mConverting) {
        double t = y;
        y = z;
        z = t;
    }
}

// Point export, for default positions and vectors that the library makes itself.
inline void AxisExport(bool oldClient, double& x, double& y, double& z) {
    (void)x;
    if (!oldClient) {
        double t = y;
        y = z;
        z = t;
    }
}

} // namespace KeZel
