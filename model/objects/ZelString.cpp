#include "model/objects/ZelString.h"

#include "frame/CZEL.h"

namespace KeZel {

unsigned short CZelString::CodeOf(const char* name) {
    if (!name) return 0;
    unsigned char a = static_cast<unsigned char>(name[0]);
    unsigned char b = a ? static_cast<unsigned char>(name[1]) : 0;
    return static_cast<unsigned short>(a * 256 + b);
}

unsigned short CZelString::getCode(int index) const {
    if (index < 0 || index >= getCount()) return 0;
    return mTexts[static_cast<size_t>(index)].first;
}

const char* CZelString::getText(int index) const {
    if (index < 0 || index >= getCount()) return nullptr;
    return mTexts[static_cast<size_t>(index)].second.c_str();
}

const char* CZelString::findText(unsigned short code) const {
    for (const auto& t : mTexts)
        if (t.first == code) return t.second.c_str();
    return nullptr;
}

void CZelString::setText(unsigned short code, const char* text) {
    if (!text) {
        removeText(code);
        return;
    }
    for (auto& t : mTexts)
        if (t.first == code) {
            t.second = text;
            return;
        }
    mTexts.emplace_back(code, text);
}

void CZelString::removeText(unsigned short code) {
    for (CZelLanguageTexts::iterator it = mTexts.begin(); it != mTexts.end(); ++it)
        if (it->first == code) {
            mTexts.erase(it);
            return;
        }
}

unsigned short CZelString::currentCode() const {
    return CodeOf(mZel ? mZel->getLanguage() : "en");
}

const char* CZelString::getCurrentText() const {
    return findText(currentCode());
}

void CZelString::setCurrentText(const char* text) {
    setText(currentCode(), text);
}

void CZelString::copyFrom(const IZelString& other) {
    if (&other == this) return;
    CZelLanguageTexts texts;
    for (int i = 0; i < other.getCount(); ++i) {
        const char* text = other.getText(i);
        texts.emplace_back(other.getCode(i), text ? text : "");
    }
    mTexts.swap(texts);
}

} // namespace KeZel
