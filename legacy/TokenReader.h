// Lexical layer of the legacy text pair (.opt, .db): CReader reads values from a host
// stream one byte at a time; CTokenReader adds a tokeniser with "-name" option tokens.
// Numbers are read by hand, so that no locale changes what a file means.
#pragma once

#include "frame/ZelTypes.h"

#include <string>
#include <vector>

namespace KeZel {

class CZEL;
class CZelStream;

enum ETokenType {
    eTokenNumber = 0, // "12", "-3.5"; ".25" is kept as "0.25"
    eTokenOption = 1, // "-" then a letter, then letters, digits and '_'
    eTokenWord = 2,   // a letter, then letters, digits and '_'
    eTokenString = 3, // the bytes between double quotes
    eTokenEnd = 4,    // end of the stream; empty text
};

struct CToken {
    ETokenType type = eTokenEnd;
    int line = 0;
    int column = 0;
    unsigned int position = 0;
    std::string text; // never holds a zero byte
};

class CReader {
public:
    // Both may be null: a null stream reads as an empty one, a null scene keeps quiet
    // and leaves coordinates as read.
    CReader(CZelStream* stream, CZEL* scene);

    virtual ~CReader();
    // Three doubles, then the scene's coordinate fix.
    virtual void ReadVector(double v[3]);
    // Three components into bytes 1 to 3, byte 0 cleared; `bytes` may be null.
    virtual CZelColor ReadColor(unsigned char* bytes);
    // Three integers clamped to -63..63 into bytes 1 to 3, byte 0 cleared.
    virtual CZelColor ReadSignedColor(unsigned char* bytes);
    virtual double ReadDouble(bool* hadPoint = nullptr);
    virtual int ReadInt();
    // A plain reader has no number list form: `count` zeros.
    virtual std::vector<float> ReadFloats(int count);
    virtual std::string ReadWord();
    // A quoted text, or else the rest of the line.
    virtual std::string ReadText();
    // Reads the next token into `token`; false at the end of the stream.
    virtual bool ReadToken(CToken& token);

    // The next byte, or -1 at the end.
    int ReadChar();
    // The next byte that is a letter or a digit, or -1.
    int ReadAlnum();
    // Steps back one byte; the stream must be seekable.
    void Unread();
    // Reads `n` bytes; false when the stream ended first.
    bool Skip(int n);
    // Reads through the first `byte`; answers it, or -1 at the end.
    int SkipTo(int byte);
    // Reads past spaces and tabs; answers the byte behind them (consumed), or -1.
    int SkipBlanks();
    // The first byte that is not white space or part of a '#' comment, consumed.
    int NextSignificant();
    // True when only spaces and tabs stand before a line end or a comment. Reads
    // nothing.
    bool AtEndOfLine();
    std::string ReadTextString() { return ReadText(); }
    // The rest of the line without surrounding blanks; a quoted line loses its quotes.
    std::string ReadLine();
    // A text in UTF-8: as it stands behind a U prefix, converted from the single-byte
    // code page without one.
    std::string ReadUtf8Text();
    // ASCII comparison without regard to case; null equals only null.
    static bool SameText(const char* a, const char* b);

    // One component of ReadColor: 0..1 with a point scales to 0..255.
    unsigned char ReadColorComponent();

    CZelStream* getStream() const { return mStream; }
    CZEL* getScene() const { return mScene; }

    // Process-wide position of the legacy readers, for messages only: shared by all
    // readers and never reset.
    static int CurrentLine();
    static int CurrentColumn();
    static unsigned int BytesConsumed();

protected:
    void Warn(const char* text);
    // The tokeniser; `token.type` is left as it was for a lone "-".
    bool Tokenise(CToken& token);
    static void CountLine();

    CZelStream* mStream;
    CZEL* mScene;
};

class CTokenReader : public CReader {
public:
    CTokenReader(CZelStream* stream, CZEL* scene) : CReader(stream, scene) {}

    // `count` -1 reads the count first.
    std::vector<float> ReadFloats(int count) override;
    // The next token, which must be a word.
    std::string ReadWord() override;
    // Also remembers the token for PeekToken.
    bool ReadToken(CToken& token) override;

    // Reads the next token into the remembered one.
    bool ReadToken();
    // The next token, which must be an option.
    std::string ReadOption();
    // The token last read.
    const CToken& PeekToken() const { return mToken; }
    // Reads a token: true for "Y" or "y".
    bool IsFlag();

private:
    CToken mToken;
};

// Text in the single-byte code page of the legacy files (Windows-1252) turned into UTF-8.
std::string LegacyCodePageToUtf8(const std::string& text);

} // namespace KeZel
