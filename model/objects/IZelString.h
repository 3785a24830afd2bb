// A text in several languages: names, descriptions, comments. Public header, C++11.
// Slot order is part of the interface.
//
// Operation order chosen here: getCount, getCode, getText (by position), findText (by
// code), setText, removeText, clear, getCurrentText, setCurrentText, destructor.
#ifndef ZEL_MODEL_OBJECTS_IZELSTRING_H
#define ZEL_MODEL_OBJECTS_IZELSTRING_H

#include "foundation/Visibility.h"

namespace KeZel {

// An ordered list of pairs: a language code and a text. A code packs two ASCII letters
// into 16 bits, the first letter in the high byte ("en" is 25966). The order is the order
// of first insertion and is kept through a read and a write.
class ZEL_API IZelString {
public:
    virtual int getCount() const = 0;
    // 0 for an index out of range.
    virtual unsigned short getCode(int index) const = 0;
    // Null for an index out of range.
    virtual const char* getText(int index) const = 0;
    // Null when the code has no text.
    virtual const char* findText(unsigned short code) const = 0;
    // Replaces the text of the code, or appends the pair. A null text removes the pair.
    virtual void setText(unsigned short code, const char* text) = 0;
    // An absent code is no error.
    virtual void removeText(unsigned short code) = 0;
    virtual void clear() = 0;
    // The text in the manager's current language; null when there is none.
    virtual const char* getCurrentText() const = 0;
    virtual void setCurrentText(const char* text) = 0;
    virtual ~IZelString() {}
};

} // namespace KeZel

#endif
