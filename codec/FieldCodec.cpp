// The field encodings of scene files, written once for every entity.
#include "codec/ZelXMLIO.h"

#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "frame/UUID.h"
#include "xml/XMLTree.h"

#include <cstdio>
#include <cstring>

namespace KeZel {

using namespace Kestra;
using KestraXML::XIXMLAttribute;
using KestraXML::XIXMLData;
using KestraXML::XIXMLElement;
using KestraXML::XIXMLNode;
using KestraXML::XKey;

namespace {

XIXMLElement* AddText(XIXMLElement* parent, const char* key, const char* format, ...) X_PRINTF(3, 4);

XIXMLElement* AddText(XIXMLElement* parent, const char* key, const char* format, ...) {
    char buffer[2048];
    va_list args;
    va_start(args, format);
    int n = std::vsnprintf(buffer, sizeof buffer, format, args);
    va_end(args);
    // A text that does not fit the 2048-byte buffer is refused, as the engine's own
    // formatting refuses it.
    XRequire(n >= 0 && n < static_cast<int>(sizeof buffer));
    XIXMLElement* child = CZelXMLIO::add(parent, key);
    child->NewData(buffer);
    return child;
}

// The text of a required child: a missing child or text is a failed pointer assertion.
const char* NeedText(const XIXMLElement* e, const char* key) {
    const char* text = CZelXMLIO::textOf(CZelXMLIO::need(e, key));
    XAssertPointer(text);
    return text;
}

template <class T> T Scan(const char* text, const char* format) {
    T value = T();
    XRequire(std::sscanf(text, format, &value) == 1);
    return value;
}

void LanguageCode(unsigned short code, char name[3]) {
    name[0] = static_cast<char>(code >> 8);
    name[1] = static_cast<char>(code & 0xFF);
    name[2] = 0;
}

unsigned short CodeOf(const char* name) {
    unsigned char a = static_cast<unsigned char>(name[0]);
    unsigned char b = a ? static_cast<unsigned char>(name[1]) : 0;
    return static_cast<unsigned short>(a * 256 + b);
}

CZelVector ReadXYZ(const XIXMLElement* e) {
    CZelVector v;
    v.x = Scan<double>(CZelXMLIO::attributeText(e, "X"), "%lf");
    v.y = Scan<double>(CZelXMLIO::attributeText(e, "Y"), "%lf");
    v.z = Scan<double>(CZelXMLIO::attributeText(e, "Z"), "%lf");
    return v;
}

void WriteXYZ(XIXMLElement* e, const CZelVector& v, bool exchange) {
    char text[64];
    std::snprintf(text, sizeof text, "%lf", v.x);
    CZelXMLIO::setAttribute(e, "X", text);
    std::snprintf(text, sizeof text, "%lf", exchange ? v.z : v.y);
    CZelXMLIO::setAttribute(e, "Y", text);
    std::snprintf(text, sizeof text, "%lf", exchange ? v.y : v.z);
    CZelXMLIO::setAttribute(e, "Z", text);
}

unsigned char Byte(long value) {
    return static_cast<unsigned char>(value & 0xFF);
}

} // namespace

CZelXMLIO::CZelXMLIO(CZEL* zel, bool fullMode) : mZel(zel), mFullMode(fullMode) {
    XAssert(zel != nullptr);
}

// ---- Elements

XIXMLElement* CZelXMLIO::find(const XIXMLElement* parent, const char* name) {
    XAssertPointer(parent);
    XIXMLElement* p = const_cast<XIXMLElement*>(parent);
    return p->FindElement(p->GetKey(name));
}

XIXMLElement* CZelXMLIO::need(const XIXMLElement* parent, const char* name) {
    XIXMLElement* child = find(parent, name);
    XAssertPointer(child);
    return child;
}

XIXMLElement* CZelXMLIO::add(XIXMLElement* parent, const char* name) {
    XAssertPointer(parent);
    XIXMLElement* child = parent->NewElement(parent->GetKey(name));
    XAssertPointer(child);
    return child;
}

XIXMLElement* CZelXMLIO::findOrAdd(XIXMLElement* parent, const char* name) {
    XIXMLElement* child = find(parent, name);
    return child ? child : add(parent, name);
}

void CZelXMLIO::removeAll(XIXMLElement* parent, const char* name) {
    XAssertPointer(parent);
    XKey key = parent->GetKey(name);
    while (XIXMLElement* child = parent->FindElement(key)) child->AsNode()->Destroy();
}

XIXMLNode* CZelXMLIO::removeItems(XIXMLElement* outer, const char* name) {
    XKey key = outer->GetKey(name);
    XIXMLElement* first = outer->FindElement(key);
    if (!first) return nullptr;
    XIXMLNode* after = first->AsNode()->GetNext();
    while (after) {
        XIXMLElement* e = after->AsElement();
        if (!e || e->GetKey() == nullptr || *e->GetKey() != *key) break;
        after = after->GetNext();
    }
    removeAll(outer, name);
    return after;
}

void CZelXMLIO::placeLast(XIXMLElement* outer, XIXMLNode* before) {
    XIXMLNode* last = nullptr;
    for (XIXMLNode* n = before; n; n = n->GetNext()) last = n;
    if (last && last != before) outer->MoveNode(last, before);
}

XIXMLElement* CZelXMLIO::replace(XIXMLElement* parent, const char* name) {
    XIXMLElement* first = find(parent, name);
    XIXMLElement* fresh = add(parent, name);
    if (!first) return fresh;
    // The new element takes the place of the first old one, so that writing a scene
    // twice gives the same bytes; every old one goes.
    parent->MoveNode(fresh->AsNode(), first->AsNode());
    XKey key = parent->GetKey(name);
    for (XIXMLElement* e = parent->FindElement(key); e;) {
        XIXMLElement* next = e->FindNextElement();
        if (e != fresh) e->AsNode()->Destroy();
        e = next;
    }
    return fresh;
}

XIXMLAttribute* CZelXMLIO::findAttribute(const XIXMLElement* e, const char* name) {
    XAssertPointer(e);
    XIXMLElement* p = const_cast<XIXMLElement*>(e);
    return p->FindAttribute(p->GetKey(name));
}

const char* CZelXMLIO::attributeText(const XIXMLElement* e, const char* name) {
    XIXMLAttribute* a = findAttribute(e, name);
    XAssertPointer(a);
    return a->GetValue();
}

void CZelXMLIO::setAttribute(XIXMLElement* e, const char* name, const char* value) {
    XAssertPointer(e);
    XKey key = e->GetKey(name);
    if (XIXMLAttribute* a = e->FindAttribute(key))
        a->SetValue(value);
    else
        e->AddAttribute(key, value);
}

const char* CZelXMLIO::textOf(const XIXMLElement* e) {
    if (!e) return nullptr;
    const XIXMLData* data = e->GetData();
    // A data node that holds a block provider has no text.
    if (!data || KestraXML::XGetProvider(data)) return nullptr;
    return data->GetText();
}

// ---- Writers

void CZelXMLIO::putFlag(XIXMLElement* e, const char* key, bool value) const {
    if (value) add(e, key);
}

void CZelXMLIO::putBoolValue(XIXMLElement* e, const char* key, bool value) const {
    AddText(e, key, "%d", value ? 1 : 0);
}

void CZelXMLIO::putInt(XIXMLElement* e, const char* key, int value) const {
    AddText(e, key, "%d", value);
}

void CZelXMLIO::putDouble(XIXMLElement* e, const char* key, double value) const {
    AddText(e, key, "%lf", value);
}

void CZelXMLIO::putLong(XIXMLElement* e, const char* key, long value) const {
    AddText(e, key, "%ld", value);
}

void CZelXMLIO::putHex(XIXMLElement* e, const char* key, unsigned int value) const {
    AddText(e, key, "%08X", value);
}

void CZelXMLIO::putString(XIXMLElement* e, const char* key, const char* text) const {
    AddText(e, key, "%s", text ? text : "");
}

void CZelXMLIO::putLanguages(XIXMLElement* e, const char* key, const CZelLanguageTexts& texts) const {
    XIXMLElement* child = add(e, key);
    for (const auto& t : texts) {
        char name[3];
        LanguageCode(t.first, name);
        child->AddAttribute(child->GetKey(name), t.second.c_str());
    }
}

void CZelXMLIO::putEnString(XIXMLElement* e, const char* key, const char* text) const {
    setAttribute(add(e, key), "en", text ? text : "");
}

void CZelXMLIO::putVector(XIXMLElement* e, const char* key, const CZelVector& v, bool exchange) const {
    WriteXYZ(add(e, key), v, exchange);
}

void CZelXMLIO::putVector(XIXMLElement* e, const char* key, const CZelVector& v) const {
    putVector(e, key, v, mZel->isOldClient());
}

void CZelXMLIO::putVector2D(XIXMLElement* e, const char* key, double x, double y) const {
    XIXMLElement* child = add(e, key);
    char text[64];
    std::snprintf(text, sizeof text, "%lf", x);
    setAttribute(child, "X", text);
    std::snprintf(text, sizeof text, "%lf", y);
    setAttribute(child, "Y", text);
}

void CZelXMLIO::putTriangle(XIXMLElement* e, const char* key, const CZelVector points[3],
                            bool exchange) const {
    XIXMLElement* child = add(e, key);
    putVector(child, "Pt.0", points[0], exchange);
    putVector(child, "Pt.1", points[1], exchange);
    putVector(child, "Pt.2", points[2], exchange);
}

void CZelXMLIO::putColor(XIXMLElement* e, const char* key, const CZelColor& c) const {
    XIXMLElement* child = add(e, key);
    char text[16];
    std::snprintf(text, sizeof text, "%ld", static_cast<long>(c.mRed));
    setAttribute(child, "R", text);
    std::snprintf(text, sizeof text, "%ld", static_cast<long>(c.mGreen));
    setAttribute(child, "G", text);
    std::snprintf(text, sizeof text, "%ld", static_cast<long>(c.mBlue));
    setAttribute(child, "B", text);
}

void CZelXMLIO::putShiftedColor(XIXMLElement* e, const char* key, const CZelColor& c) const {
    CZelColor shifted = c;
    shifted.mRed = static_cast<unsigned char>(c.mRed + 128);
    shifted.mGreen = static_cast<unsigned char>(c.mGreen + 128);
    shifted.mBlue = static_cast<unsigned char>(c.mBlue + 128);
    putColor(e, key, shifted);
}

void CZelXMLIO::putDate(XIXMLElement* e, const char* key, const CZelDate& d) const {
    XIXMLElement* child = add(e, key);
    putInt(child, "Month", d.mMonth);
    putInt(child, "Day", d.mDay);
    putInt(child, "Hour", d.mHour);
    putInt(child, "Minute", d.mMinute);
    putInt(child, "Year", d.mYear);
}

void CZelXMLIO::putPlace(XIXMLElement* e, const CZelPlaceData& p) const {
    XIXMLElement* child = add(e, "Place");
    putInt(child, "Longitude", p.mLongitude);
    putInt(child, "Latitude", p.mLatitude);
    putInt(child, "TimeZone", p.mTimeZone);
    putFlag(child, "Daylight", p.mDaylight);
}

void CZelXMLIO::putUUID(XIXMLElement* e, const char* attribute, const CZelUUID& id) const {
    char text[33];
    ZelUUIDToText(id, text);
    setAttribute(e, attribute, text);
}

void CZelXMLIO::putMatrix(XIXMLElement* e, const double m[16]) const {
    XIXMLElement* child = add(e, "Model.Rotation.Matrixs");
    for (int row = 0; row < 4; ++row) {
        const double* r = m + row * 4;
        XIXMLElement* line = AddText(child, "Line", "%lf, %lf, %lf, %lf", r[0], r[1], r[2], r[3]);
        char index[16];
        std::snprintf(index, sizeof index, "%d", row);
        setAttribute(line, "Index", index);
    }
}

void CZelXMLIO::putFloats(XIXMLElement* e, const char* key, const float* values, long count) const {
    XIXMLElement* child = add(e, key);
    char text[32];
    std::snprintf(text, sizeof text, "%ld", count);
    setAttribute(child, "Length", text);
    for (long i = 0; i < count; ++i) AddText(child, "Float", "%lf", static_cast<double>(values[i]));
}

void CZelXMLIO::putLabel(XIXMLElement* e, const char* attribute, const CZelLabel* table, int value) const {
    setAttribute(e, attribute, ZelLabelOf(table, value));
}

// ---- Required readers

bool CZelXMLIO::getFlag(const XIXMLElement* e, const char* key) const {
    return find(e, key) != nullptr;
}

bool CZelXMLIO::getBoolValue(const XIXMLElement* e, const char* key) const {
    return Scan<int>(NeedText(e, key), "%d") != 0;
}

int CZelXMLIO::getInt(const XIXMLElement* e, const char* key) const {
    return Scan<int>(NeedText(e, key), "%d");
}

double CZelXMLIO::getDouble(const XIXMLElement* e, const char* key) const {
    return Scan<double>(NeedText(e, key), "%lf");
}

long CZelXMLIO::getLong(const XIXMLElement* e, const char* key) const {
    return Scan<long>(NeedText(e, key), "%ld");
}

unsigned int CZelXMLIO::getHex(const XIXMLElement* e, const char* key) const {
    return Scan<unsigned int>(NeedText(e, key), "%08X");
}

std::string CZelXMLIO::getString(const XIXMLElement* e, const char* key) const {
    const char* text = textOf(need(e, key));
    return text ? std::string(text) : std::string();
}

CZelLanguageTexts CZelXMLIO::getLanguages(const XIXMLElement* e, const char* key) const {
    CZelLanguageTexts texts;
    for (XIXMLAttribute* a = need(e, key)->GetFirstAttribute(); a; a = a->GetNext())
        texts.emplace_back(CodeOf(*a->GetKey()), a->GetValue());
    return texts;
}

std::string CZelXMLIO::getEnString(const XIXMLElement* e, const char* key) const {
    return attributeText(need(e, key), "en");
}

CZelVector CZelXMLIO::getVector(const XIXMLElement* e, const char* key) const {
    CZelVector v = ReadXYZ(need(e, key));
    mZel->importPoint(v);
    return v;
}

CZelVector CZelXMLIO::getRawVector(const XIXMLElement* e, const char* key) const {
    return ReadXYZ(need(e, key));
}

void CZelXMLIO::getVector2D(const XIXMLElement* e, const char* key, double& x, double& y) const {
    getVector2DOf(need(e, key), x, y);
}

CZelVector CZelXMLIO::getVectorOf(const XIXMLElement* child) const {
    XAssertPointer(child);
    CZelVector v = ReadXYZ(child);
    mZel->importPoint(v);
    return v;
}

void CZelXMLIO::getVector2DOf(const XIXMLElement* child, double& x, double& y) const {
    XAssertPointer(child);
    x = Scan<double>(attributeText(child, "X"), "%lf");
    y = Scan<double>(attributeText(child, "Y"), "%lf");
}

void CZelXMLIO::getTriangle(const XIXMLElement* e, const char* key, CZelVector points[3]) const {
    const XIXMLElement* child = need(e, key);
    points[2] = getVector(child, "Pt.2");
    points[1] = getVector(child, "Pt.1");
    points[0] = getVector(child, "Pt.0");
}

CZelColor CZelXMLIO::getColor(const XIXMLElement* e, const char* key) const {
    return getColorOf(need(e, key));
}

CZelColor CZelXMLIO::getColorOf(const XIXMLElement* child) const {
    XAssertPointer(child);
    CZelColor c;
    c.mSpare = 0;
    if (findAttribute(child, "R")) {
        c.mRed = Byte(Scan<long>(attributeText(child, "R"), "%ld"));
        c.mGreen = Byte(Scan<long>(attributeText(child, "G"), "%ld"));
        c.mBlue = Byte(Scan<long>(attributeText(child, "B"), "%ld"));
    } else {
        // Older files: three children with the components as text.
        c.mRed = Byte(getInt(child, "Red"));
        c.mGreen = Byte(getInt(child, "Green"));
        c.mBlue = Byte(getInt(child, "Blue"));
    }
    return c;
}

CZelColor CZelXMLIO::getShiftedColor(const XIXMLElement* e, const char* key) const {
    CZelColor c = getColor(e, key);
    c.mRed = static_cast<unsigned char>(c.mRed + 128);
    c.mGreen = static_cast<unsigned char>(c.mGreen + 128);
    c.mBlue = static_cast<unsigned char>(c.mBlue + 128);
    return c;
}

void CZelXMLIO::getDate(const XIXMLElement* e, const char* key, CZelDate& d) const {
    const XIXMLElement* child = need(e, key);
    d.mMonth = getInt(child, "Month");
    d.mDay = getInt(child, "Day");
    d.mHour = getInt(child, "Hour");
    d.mMinute = getInt(child, "Minute");
    findInt(child, "Year", d.mYear);
}

void CZelXMLIO::getPlace(const XIXMLElement* e, CZelPlaceData& p) const {
    const XIXMLElement* child = need(e, "Place");
    p.mLongitude = getInt(child, "Longitude");
    p.mLatitude = getInt(child, "Latitude");
    p.mTimeZone = getInt(child, "TimeZone");
    p.mDaylight = getFlag(child, "Daylight");
}

CZelUUID CZelXMLIO::getUUID(const XIXMLElement* e, const char* attribute) const {
    return ZelUUIDFromText(attributeText(e, attribute));
}

void CZelXMLIO::getMatrix(const XIXMLElement* e, double m[16]) const {
    for (int i = 0; i < 16; ++i) m[i] = (i % 5 == 0) ? 1.0 : 0.0;
    const XIXMLElement* child = need(e, "Model.Rotation.Matrixs");
    XIXMLElement* p = const_cast<XIXMLElement*>(child);
    XKey lineKey = p->GetKey("Line");
    for (XIXMLElement* line = p->FindElement(lineKey); line; line = line->FindNextElement()) {
        int row = Scan<int>(attributeText(line, "Index"), "%d");
        double r[4];
        const char* text = textOf(line);
        XAssertPointer(text);
        XRequire(std::sscanf(text, "%lf, %lf, %lf, %lf", &r[0], &r[1], &r[2], &r[3]) == 4);
        XAssert(row >= 0 && row < 4);
        for (int c = 0; c < 4; ++c) m[row * 4 + c] = r[c];
    }
}

std::vector<float> CZelXMLIO::getFloats(const XIXMLElement* e, const char* key) const {
    const XIXMLElement* child = need(e, key);
    long length = Scan<long>(attributeText(child, "Length"), "%ld");
    XAssert(length >= 0);
    std::vector<float> values;
    values.reserve(static_cast<size_t>(length < 65536 ? length : 65536));
    XIXMLElement* p = const_cast<XIXMLElement*>(child);
    XKey floatKey = p->GetKey("Float");
    for (XIXMLElement* f = p->FindElement(floatKey); f && values.size() < static_cast<size_t>(length);
         f = f->FindNextElement()) {
        const char* text = textOf(f);
        XAssertPointer(text);
        values.push_back(static_cast<float>(Scan<double>(text, "%lf")));
    }
    values.resize(static_cast<size_t>(length), 0.0f);
    return values;
}

int CZelXMLIO::getLabel(const XIXMLElement* e, const char* attribute, const CZelLabel* table) const {
    return ZelValueOf(table, attributeText(e, attribute));
}

// ---- Optional readers

bool CZelXMLIO::findInt(const XIXMLElement* e, const char* key, int& value) const {
    if (!find(e, key)) return false;
    value = getInt(e, key);
    return true;
}

bool CZelXMLIO::findDouble(const XIXMLElement* e, const char* key, double& value) const {
    if (!find(e, key)) return false;
    value = getDouble(e, key);
    return true;
}

bool CZelXMLIO::findLong(const XIXMLElement* e, const char* key, long& value) const {
    if (!find(e, key)) return false;
    value = getLong(e, key);
    return true;
}

bool CZelXMLIO::findString(const XIXMLElement* e, const char* key, std::string& value) const {
    if (!find(e, key)) return false;
    value = getString(e, key);
    return true;
}

bool CZelXMLIO::findEnString(const XIXMLElement* e, const char* key, std::string& value) const {
    if (!find(e, key)) return false;
    value = getEnString(e, key);
    return true;
}

bool CZelXMLIO::findVector(const XIXMLElement* e, const char* key, CZelVector& value) const {
    if (!find(e, key)) return false;
    value = getVector(e, key);
    return true;
}

bool CZelXMLIO::findColor(const XIXMLElement* e, const char* key, CZelColor& value) const {
    if (!find(e, key)) return false;
    value = getColor(e, key);
    return true;
}

bool CZelXMLIO::findDate(const XIXMLElement* e, const char* key, CZelDate& value) const {
    if (!find(e, key)) return false;
    getDate(e, key, value);
    return true;
}

bool CZelXMLIO::findUUID(const XIXMLElement* e, const char* attribute, CZelUUID& value) const {
    if (!findAttribute(e, attribute)) return false;
    value = getUUID(e, attribute);
    return true;
}

bool CZelXMLIO::findLabel(const XIXMLElement* e, const char* attribute, const CZelLabel* table,
                          int& value) const {
    if (!findAttribute(e, attribute)) return false;
    value = getLabel(e, attribute, table);
    return true;
}

void CZelXMLIO::reportException(const char* where, const char* what) const {
    mZel->reportException(where, what);
}

} // namespace KeZel
