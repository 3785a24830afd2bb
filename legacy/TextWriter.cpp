#include "legacy/TextWriter.h"

#include "frame/CZEL.h"
#include "frame/ZelStream.h"

#include <cstdio>
#include <cstring>

namespace KeZel {

namespace {

// The error bound of the decimal loop after each digit: 1e-6 times ten, k + 1 times,
// folded by the compiler with the same roundings the loop would make at run time.
constexpr double Bound(int k) {
    return k < 0 ? 1e-6 : Bound(k - 1) * 10.0;
}
constexpr double kBound[6] = {Bound(0), Bound(1), Bound(2), Bound(3), Bound(4), Bound(5)};
static_assert(kBound[4] < 0.9 && !(kBound[5] < 0.9), "six decimals at most");

const char kPairs[] = "00010203040506070809"
                      "10111213141516171819"
                      "20212223242526272829"
                      "30313233343536373839"
                      "40414243444546474849"
                      "50515253545556575859"
                      "60616263646566676869"
                      "70717273747576777879"
                      "80818283848586878889"
                      "90919293949596979899";

// Decimal digits of `v` at `p`; answers the end.
char* PutUnsigned(char* p, unsigned int v) {
    char tmp[10];
    char* t = tmp + sizeof tmp;
    while (v >= 100) {
        unsigned int r = v % 100;
        v /= 100;
        t -= 2;
        std::memcpy(t, kPairs + 2 * r, 2);
    }
    if (v >= 10) {
        t -= 2;
        std::memcpy(t, kPairs + 2 * v, 2);
    } else {
        *--t = static_cast<char>('0' + v);
    }
    size_t n = static_cast<size_t>(tmp + sizeof tmp - t);
    std::memcpy(p, t, n);
    return p + n;
}

} // namespace

int CWriter::Put(const char* bytes, int size) {
    if (!mStream) return 0;
    mStream->write(bytes, size);
    return size;
}

int CWriter::FormatDouble(double d, char* out) {
    if (!(d >= -1e30))
        d = -1e30; // a NaN too
    else if (d > 1e30)
        d = 1e30;
    if (d == 0.0) {
        std::memcpy(out, "0.0 ", 4);
        return 4;
    }
    double a = d < 0.0 ? -d : d;
    if (a > 2147483647.0) return std::snprintf(out, 64, "%lf ", d);

    a = a + 5e-7;
    char* p = out;
    if (d < 0.0) *p++ = '-';
    // a is below 2^31 + 1: the integer part fits.
    unsigned int whole = static_cast<unsigned int>(a);
    p = PutUnsigned(p, whole);
    *p++ = '.';
    // Digit by digit while the remainder is above what the earlier roundings may have
    // put into it; stops after six.
    double f = a - whole;
    for (int k = 0;; ++k) {
        f = f * 10.0;
        int digit = static_cast<int>(f);
        *p++ = static_cast<char>('0' + digit);
        f = f - digit;
        if (k == 5 || !(f > kBound[k])) break;
    }
    *p++ = ' ';
    return static_cast<int>(p - out);
}

int CWriter::WriteDouble(double d) {
    char buffer[64];
    return Put(buffer, FormatDouble(d, buffer));
}

int CWriter::WriteBool(bool b) {
    return Put(b ? "Y " : "N ", 2);
}

int CWriter::WriteFloats(const float* table, int count, bool withCount) {
    int n = 0;
    if (withCount) n += WriteInt(count);
    if (table)
        for (int i = 0; i < count; ++i) n += WriteDouble(table[i]);
    return n + Put("\n", 1);
}

int CWriter::WriteString(const char* text) {
    if (!text) return 0;
    return Put(text, static_cast<int>(std::strlen(text)));
}

int CWriter::WriteInt(int i) {
    char buffer[16];
    char* p = buffer;
    unsigned int magnitude = static_cast<unsigned int>(i);
    if (i < 0) {
        *p++ = '-';
        magnitude = 0u - magnitude;
    }
    p = PutUnsigned(p, magnitude);
    *p++ = ' ';
    return Put(buffer, static_cast<int>(p - buffer));
}

int CWriter::WriteSignedColor(const unsigned char* bytes) {
    int n = 0;
    for (int i = 1; i < 4; ++i) n += WriteInt(static_cast<signed char>(bytes[i]));
    return n;
}

int CWriter::WriteColor(const unsigned char* bytes) {
    int n = 0;
    for (int i = 1; i < 4; ++i) n += WriteInt(bytes[i]);
    return n;
}

int CWriter::WriteVector(const double* v) {
    bool swap = mScene && mScene->isOldClient();
    int n = WriteDouble(v[0]);
    n += WriteDouble(swap ? v[2] : v[1]);
    return n + WriteDouble(swap ? v[1] : v[2]);
}

} // namespace KeZel
