// Conveniences that every host would otherwise write itself: a file stream that can open
// the file beside it, a memory stream, a feedback that collects what it is told, and an
// owner that destroys a manager. Public header, header-only, C++11.
#ifndef ZEL_FRAME_ZELHOST_H
#define ZEL_FRAME_ZELHOST_H

#include "frame/ZelEntryPoints.h"
#include "frame/ZelMgr.h"
#include "frame/ZelStream.h"

#include <cstdio>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace KeZel {

// A stream over a file. openStream opens a file of the given name in the same folder,
// which is how the library finds the .db beside an .opt file.
class CZelFileStream : public CZelStream {
public:
    // mode 0 reads, any other mode writes (the file is created or truncated).
    CZelFileStream(const char* path, int mode) : mPath(path ? path : ""), mFile(nullptr), mFailed(false) {
        mFile = std::fopen(mPath.c_str(), mode == 0 ? "rb" : "wb");
    }
    ~CZelFileStream() override { close(); }

    // False when the file could not be opened.
    bool isOpen() override { return mFile != nullptr; }
    CZelStream* openStream(const char* name, int mode) override {
        if (!name) return nullptr;
        std::string path = folder() + name;
        CZelFileStream* sibling = new CZelFileStream(path.c_str(), mode);
        if (!sibling->isOpen()) {
            delete sibling;
            return nullptr;
        }
        return sibling;
    }
    void release() override { delete this; }
    void flush() override {
        if (mFile) std::fflush(mFile);
    }
    int read(void* buffer, int size) override {
        if (!mFile || size <= 0) return 0;
        return static_cast<int>(std::fread(buffer, 1, static_cast<size_t>(size), mFile));
    }
    void write(const void* buffer, int size) override {
        if (!mFile || size <= 0) return;
        if (std::fwrite(buffer, 1, static_cast<size_t>(size), mFile) != static_cast<size_t>(size)) {
            mFailed = true;
            throw std::runtime_error("Can't write to " + mPath);
        }
    }
    unsigned int tell() override { return mFile ? static_cast<unsigned int>(std::ftell(mFile)) : 0; }
    void seek(unsigned int position) override {
        if (mFile) std::fseek(mFile, static_cast<long>(position), SEEK_SET);
    }
    bool isValid() override { return mFile != nullptr && !mFailed; }

    // Closes the file; false when a write failed or the final flush did.
    bool close() {
        if (!mFile) return !mFailed;
        if (std::fclose(mFile) != 0) mFailed = true;
        mFile = nullptr;
        return !mFailed;
    }
    const std::string& path() const { return mPath; }

private:
    std::string folder() const {
        std::string::size_type slash = mPath.find_last_of("/\\");
        return slash == std::string::npos ? std::string() : mPath.substr(0, slash + 1);
    }

    std::string mPath;
    FILE* mFile;
    bool mFailed;
};

// A stream over bytes in memory. Siblings added by name are what openStream opens.
class CZelMemoryStream : public CZelStream {
public:
    CZelMemoryStream() : mPosition(0), mWriteLimit(static_cast<size_t>(-1)), mOwned(false) {}
    explicit CZelMemoryStream(const std::string& bytes)
        : mBytes(bytes), mPosition(0), mWriteLimit(static_cast<size_t>(-1)), mOwned(false) {}

    bool isOpen() override { return true; }
    CZelStream* openStream(const char* name, int mode) override {
        if (!name) return nullptr;
        std::map<std::string, std::string>::const_iterator it = mSiblings.find(name);
        if (it == mSiblings.end() && mode == 0) return nullptr;
        CZelMemoryStream* sibling = new CZelMemoryStream(it == mSiblings.end() ? std::string() : it->second);
        sibling->mOwned = true;
        mOpened.push_back(name);
        return sibling;
    }
    void release() override {
        if (mOwned) delete this;
    }
    void flush() override {}
    int read(void* buffer, int size) override {
        if (size <= 0 || mPosition >= mBytes.size()) return 0;
        size_t n = mBytes.size() - mPosition;
        if (n > static_cast<size_t>(size)) n = static_cast<size_t>(size);
        mBytes.copy(static_cast<char*>(buffer), n, mPosition);
        mPosition += n;
        return static_cast<int>(n);
    }
    // Writes at the position; throws once the write limit (if set) is passed.
    void write(const void* buffer, int size) override {
        if (size <= 0) return;
        size_t n = static_cast<size_t>(size);
        if (mPosition + n > mWriteLimit) throw std::runtime_error("Memory stream write limit reached");
        if (mPosition + n > mBytes.size()) mBytes.resize(mPosition + n);
        mBytes.replace(mPosition, n, static_cast<const char*>(buffer), n);
        mPosition += n;
    }
    unsigned int tell() override { return static_cast<unsigned int>(mPosition); }
    void seek(unsigned int position) override { mPosition = position; }

    const std::string& bytes() const { return mBytes; }
    void setBytes(const std::string& bytes) {
        mBytes = bytes;
        mPosition = 0;
    }
    void rewind() { mPosition = 0; }
    void addSibling(const std::string& name, const std::string& bytes) { mSiblings[name] = bytes; }
    // Names that openStream was asked for, in order.
    const std::vector<std::string>& opened() const { return mOpened; }
    void setWriteLimit(size_t bytes) { mWriteLimit = bytes; }

private:
    std::string mBytes;
    size_t mPosition;
    size_t mWriteLimit;
    bool mOwned;
    std::map<std::string, std::string> mSiblings;
    std::vector<std::string> mOpened;
};

// A feedback that keeps every report and the last progress, and can cancel.
class CZelReportCollector : public CZelFeedback {
public:
    struct Report {
        std::string text;
        bool withManager;
    };

    CZelReportCollector() : mLastCurrent(-1), mLastTotal(0), mProgressCalls(0), mCancelAfter(-1) {}

    void reportError(CZelMgr* mgr, const char* text) override {
        Report r;
        r.text = text ? text : "";
        r.withManager = mgr != nullptr;
        mReports.push_back(r);
    }
    bool reportProgress(CZelMgr*, int current, int total) override {
        mLastCurrent = current;
        mLastTotal = total;
        ++mProgressCalls;
        return mCancelAfter < 0 || mProgressCalls <= mCancelAfter;
    }

    const std::vector<Report>& reports() const { return mReports; }
    size_t count() const { return mReports.size(); }
    bool empty() const { return mReports.empty(); }
    const std::string& last() const {
        static const std::string none;
        return mReports.empty() ? none : mReports.back().text;
    }
    bool contains(const std::string& text) const {
        for (size_t i = 0; i < mReports.size(); ++i)
            if (mReports[i].text == text) return true;
        return false;
    }
    void clear() { mReports.clear(); }
    int lastProgress() const { return mLastCurrent; }
    int lastTotal() const { return mLastTotal; }
    int progressCalls() const { return mProgressCalls; }
    // Answers false to the progress report after `calls` good ones; -1 never cancels.
    void cancelAfter(int calls) { mCancelAfter = calls; }

private:
    std::vector<Report> mReports;
    int mLastCurrent;
    int mLastTotal;
    int mProgressCalls;
    int mCancelAfter;
};

// Owns a manager and destroys it; moves, never copies.
class CZelMgrHandle {
public:
    CZelMgrHandle() : mMgr(nullptr) {}
    explicit CZelMgrHandle(CZelMgr* mgr) : mMgr(mgr) {}
    // Creates a manager at this library's own interface version.
    CZelMgrHandle(CZelFeedback* feedback, CZelExtStorage* storage = nullptr,
                  EVersionZEL version = eZelVersionCurrent)
        : mMgr(zel_new_mgr(version, feedback, storage)) {}
    ~CZelMgrHandle() { reset(); }
    CZelMgrHandle(CZelMgrHandle&& other) : mMgr(other.mMgr) { other.mMgr = nullptr; }
    CZelMgrHandle& operator=(CZelMgrHandle&& other) {
        if (this != &other) {
            reset();
            mMgr = other.mMgr;
            other.mMgr = nullptr;
        }
        return *this;
    }

    CZelMgr* get() const { return mMgr; }
    CZelMgr* operator->() const { return mMgr; }
    explicit operator bool() const { return mMgr != nullptr; }
    CZelMgr* detach() {
        CZelMgr* m = mMgr;
        mMgr = nullptr;
        return m;
    }
    void reset(CZelMgr* mgr = nullptr) {
        if (mMgr) mMgr->destroy();
        mMgr = mgr;
    }

private:
    CZelMgrHandle(const CZelMgrHandle&);
    CZelMgrHandle& operator=(const CZelMgrHandle&);
    CZelMgr* mMgr;
};

} // namespace KeZel

#endif
