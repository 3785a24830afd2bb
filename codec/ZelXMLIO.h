// CZelXMLIO: the scene's XML codec. Every entity's element form is written with the field
// writers below, one call a field, and read back with the matching readers, so that an
// entity's codec reads like its field table.
//
// Readers come in two kinds: getX for a required field (a missing child, attribute or
// text is a failed pointer assertion, and the entity's reader ends), and findX for an
// optional one (answers false and leaves the value alone when the field is absent).
#pragma once

#include "codec/LabelTables.h"
#include "foundation/Errors.h"
#include "frame/ZelTypes.h"
#include "xml/XMLInterfaces.h"

#include <exception>
#include <string>
#include <utility>
#include <vector>

namespace KeZel {

class CZEL;

// A text in several languages: pairs of a language code (first letter in the high byte)
// and a text, in order.
typedef std::vector<std::pair<unsigned short, std::string>> CZelLanguageTexts;

// A date of the file: month, day, hour, minute, year.
struct CZelDate {
    int mMonth;
    int mDay;
    int mHour;
    int mMinute;
    int mYear;
};

// A place of the file.
struct CZelPlaceData {
    int mLongitude;
    int mLatitude;
    int mTimeZone;
    bool mDaylight;
};

class CZelXMLIO {
public:
    typedef KestraXML::XIXMLElement Element;

    // `zel` must not be null. `fullMode` is set for a read of the whole scene: it keeps
    // the identities found in the file.
    explicit CZelXMLIO(CZEL* zel, bool fullMode = false);

    CZEL* mZel;
    bool mFullMode;

    // ---- Elements
    static Element* find(const Element* parent, const char* name);
    static Element* need(const Element* parent, const char* name);
    static Element* add(Element* parent, const char* name);
    static Element* findOrAdd(Element* parent, const char* name);
    // Removes every child of that name.
    static void removeAll(Element* parent, const char* name);
    // A new child in place of the old ones of that name (at the end when there is none).
    static Element* replace(Element* parent, const char* name);
    static KestraXML::XIXMLAttribute* findAttribute(const Element* e, const char* name);
    static const char* attributeText(const Element* e, const char* name); // required
    static void setAttribute(Element* e, const char* name, const char* value);
    // The text of an element's data child, or null without one.
    static const char* textOf(const Element* e);

    // ---- Writers: one call a field
    void putFlag(Element* e, const char* key, bool value) const;      // child only when true
    void putBoolValue(Element* e, const char* key, bool value) const; // child with "%d" of 0 or 1
    void putInt(Element* e, const char* key, int value) const;
    void putDouble(Element* e, const char* key, double value) const;
    void putLong(Element* e, const char* key, long value) const;
    void putHex(Element* e, const char* key, unsigned int value) const;
    void putString(Element* e, const char* key, const char* text) const;
    void putLanguages(Element* e, const char* key, const CZelLanguageTexts& texts) const;
    void putEnString(Element* e, const char* key, const char* text) const; // attribute "en"
    // `exchange` writes the second and third coordinates swapped.
    void putVector(Element* e, const char* key, const CZelVector& v, bool exchange) const;
    // The library's own convention: swapped for a client of the old axis convention.
    void putVector(Element* e, const char* key, const CZelVector& v) const;
    void putVector2D(Element* e, const char* key, double x, double y) const;
    void putTriangle(Element* e, const char* key, const CZelVector points[3], bool exchange) const;
    void putColor(Element* e, const char* key, const CZelColor& c) const;
    // The ambient light's colour: each byte stands in the file plus 128, modulo 256.
    void putShiftedColor(Element* e, const char* key, const CZelColor& c) const;
    void putDate(Element* e, const char* key, const CZelDate& d) const;
    void putPlace(Element* e, const CZelPlaceData& p) const; // child "Place"
    void putUUID(Element* e, const char* attribute, const CZelUUID& id) const;
    void putMatrix(Element* e, const double m[16]) const; // child "Model.Rotation.Matrixs"
    void putFloats(Element* e, const char* key, const float* values, long count) const;
    void putLabel(Element* e, const char* attribute, const CZelLabel* table, int value) const;

    // ---- Required readers
    bool getFlag(const Element* e, const char* key) const;
    bool getBoolValue(const Element* e, const char* key) const;
    int getInt(const Element* e, const char* key) const;
    double getDouble(const Element* e, const char* key) const;
    long getLong(const Element* e, const char* key) const;
    unsigned int getHex(const Element* e, const char* key) const;
    // The text of the child; an element without text gives an empty string.
    std::string getString(const Element* e, const char* key) const;
    CZelLanguageTexts getLanguages(const Element* e, const char* key) const;
    std::string getEnString(const Element* e, const char* key) const;
    // Read through the axis rule of the manager.
    CZelVector getVector(const Element* e, const char* key) const;
    // Read as it stands, with no axis rule.
    CZelVector getRawVector(const Element* e, const char* key) const;
    void getVector2D(const Element* e, const char* key, double& x, double& y) const;
    // The vector element itself, for lists of vectors under one parent (through the axis
    // rule for the three-dimensional one).
    CZelVector getVectorOf(const Element* vectorElement) const;
    void getVector2DOf(const Element* vectorElement, double& x, double& y) const;
    void getTriangle(const Element* e, const char* key, CZelVector points[3]) const;
    CZelColor getColor(const Element* e, const char* key) const;
    // The colour element itself, for lists of colours under one parent.
    CZelColor getColorOf(const Element* colorElement) const;
    CZelColor getShiftedColor(const Element* e, const char* key) const;
    // Month, day, hour and minute are required; a missing year leaves d.mYear alone.
    void getDate(const Element* e, const char* key, CZelDate& d) const;
    void getPlace(const Element* e, CZelPlaceData& p) const;
    CZelUUID getUUID(const Element* e, const char* attribute) const;
    void getMatrix(const Element* e, double m[16]) const;
    std::vector<float> getFloats(const Element* e, const char* key) const;
    int getLabel(const Element* e, const char* attribute, const CZelLabel* table) const;

    // ---- Optional readers: false when the field is absent, the value left alone.
    bool findInt(const Element* e, const char* key, int& value) const;
    bool findDouble(const Element* e, const char* key, double& value) const;
    bool findLong(const Element* e, const char* key, long& value) const;
    bool findString(const Element* e, const char* key, std::string& value) const;
    bool findEnString(const Element* e, const char* key, std::string& value) const;
    bool findVector(const Element* e, const char* key, CZelVector& value) const;
    bool findColor(const Element* e, const char* key, CZelColor& value) const;
    bool findDate(const Element* e, const char* key, CZelDate& value) const;
    bool findUUID(const Element* e, const char* attribute, CZelUUID& value) const;
    bool findLabel(const Element* e, const char* attribute, const CZelLabel* table, int& value) const;

    // ---- Lists. In a file a list is an outer element named after the list holding one
    // child per item. Writing finds or creates the outer element, removes its children of
    // the item name (other children stay) and adds the items in list order through
    // `add(outer, item)`, where the old items stood, so that writing twice gives the same
    // bytes. Reading, when the outer element exists, empties the list from its end, then
    // makes one item at the end for each child of the item name, in document order, and
    // fills it through `get(child, item)`; without the outer element the list keeps what
    // it holds and the answer is false.
    template <class List, class Add>
    Element* putList(Element* parent, const char* listName, const char* itemName, List& list, Add add) const {
        Element* outer = findOrAdd(parent, listName);
        KestraXML::XIXMLNode* before = removeItems(outer, itemName);
        for (unsigned int i = 0; i < list.getCount(); ++i) {
            add(outer, *list.at(i));
            if (before) placeLast(outer, before);
        }
        return outer;
    }
    // Removes the children named `name` and answers the node that followed the first of
    // them (null when they were last, or absent).
    static KestraXML::XIXMLNode* removeItems(Element* outer, const char* name);
    // Moves the last child of `outer` in front of `before`.
    static void placeLast(Element* outer, KestraXML::XIXMLNode* before);
    template <class List, class Get>
    bool getList(const Element* parent, const char* listName, const char* itemName, List& list,
                 Get get) const {
        const Element* outer = find(parent, listName);
        if (!outer) return false;
        getItems(outer, itemName, list, get);
        return true;
    }
    // The reading half of getList on the outer element itself.
    template <class List, class Get>
    void getItems(const Element* outer, const char* itemName, List& list, Get get) const {
        list.clear();
        Element* o = const_cast<Element*>(outer);
        for (Element* child = o->FindElement(o->GetKey(itemName)); child; child = child->FindNextElement()) {
            Kestra::XAssertPointer(list.newZelObject(static_cast<unsigned int>(-1)));
            get(child, *list.at(list.getCount() - 1));
        }
    }

    // ---- Guards of the public putInXML / initWithXML: every exception is caught and
    // reported as "Exception in <where> : <text>" (or "Unknown exception in <where>").
    template <class F> KestraXML::XIXMLElement* guardPut(const char* where, F body) const {
        try {
            return body();
        } catch (const std::exception& e) {
            reportException(where, e.what());
        } catch (...) {
            reportException(where, nullptr);
        }
        return nullptr;
    }
    template <class F> bool guardInit(const char* where, F body) const {
        try {
            return body();
        } catch (const std::exception& e) {
            reportException(where, e.what());
        } catch (...) {
            reportException(where, nullptr);
        }
        return false;
    }
    void reportException(const char* where, const char* what) const;
};

} // namespace KeZel
