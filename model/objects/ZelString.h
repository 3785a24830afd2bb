// A text in several languages: names of shaders, objects, setups, descriptions.
#pragma once

#include "codec/ZelXMLIO.h"
#include "frame/ZelFrontier.h"
#include "model/objects/IZelString.h"

namespace KeZel {

class CZEL;

class CZelString : public TZelFrontier<IZelString> {
public:
    // `zel` gives the current language; without a manager it is "en".
    explicit CZelString(CZEL* zel = nullptr) : mZel(zel) {}
    CZelString(const CZelString& other) = default;
    CZelString& operator=(const CZelString& other) = default;

    int getCount() const override { return static_cast<int>(mTexts.size()); }
    unsigned short getCode(int index) const override;
    const char* getText(int index) const override;
    const char* findText(unsigned short code) const override;
    void setText(unsigned short code, const char* text) override;
    void removeText(unsigned short code) override;
    void clear() override { mTexts.clear(); }
    const char* getCurrentText() const override;
    void setCurrentText(const char* text) override;

    // ---- Internal API
    const CZelLanguageTexts& getTexts() const { return mTexts; }
    void setTexts(const CZelLanguageTexts& texts) { mTexts = texts; }
    // Takes the pairs of another implementation, in its order.
    void copyFrom(const IZelString& other);
    // The code of the manager's current language.
    unsigned short currentCode() const;
    // The code of a two-letter name: first letter in the high byte.
    static unsigned short CodeOf(const char* name);

private:
    CZEL* mZel;
    CZelLanguageTexts mTexts;
};

} // namespace KeZel
