// The lists of children behind TZelObjectMgr.
//
//   TObjectMgr<Impl, I, Owner>          the general list: a vector of owned items.
//   TRapideMgr<Impl, I, Owner, Items>   the fast list of the scene's points and polygons: one
//                                       realloc'd block of item pointers, doubling growth, an
//                                       exact presize; items come from an Items policy
//                                       (TZelNewItems: one new each; TZelPooledItems: chunks).
//   TSimpleMgr<I, Owner, Inline, Heap>  records held by value (vertices), optionally with
//                                       room for `Inline` records inside the list itself.
//
// Items are made only by their list. The constructor used is the first that exists of
// Impl(list*), Impl(owner*), Impl(). None of the six interface operations throws: bad
// indices and failures are reported through the owner chain (owner->getZel(), then the
// manager's feedback) and answer null or do nothing. A list without a manager is silent.
// A pointer to an item of TObjectMgr or TRapideMgr stays valid while the item is in the
// list; a record of TSimpleMgr moves whenever that list grows or shrinks.
//
// The scene's two big tables take their items from the pool, which brings a point to 32
// bytes with the block (40 with one plain new each):
//   TRapideMgr<CPoint, CZelVector, CZEL, TZelPooledItems<CPoint>>
//   TRapideMgr<CPolygon, CZelPolygon, CZEL, TZelPooledItems<CPolygon>>
// Nested lists that are mostly empty (a polygon's holes) keep the default, one new each.
#pragma once

#include "frame/ZelFrontier.h"
#include "frame/ZelObjectMgr.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>
#include <stdexcept>
#include <type_traits>
#include <vector>

namespace KeZel {

class CZEL;

// Index -1 of the interface: the end of a list.
constexpr unsigned int kZelListEnd = 0xFFFFFFFFu;

// Every owner type of the scene answers getZel(); a null owner means silence.
template <class Owner> inline CZEL* ZelOf(const Owner* owner) {
    return owner ? owner->getZel() : nullptr;
}

// Passes a list's report to the manager's feedback; nothing without a manager.
void ZelListReport(CZEL* zel, const char* text);

// Memory of the lists' blocks.
struct CZelHeap {
    // Resizes `block` to `count` records of `size` bytes (count > 0). Null on failure or
    // overflow, the old block then being untouched.
    static void* resizeBlock(void* block, size_t count, size_t size) {
        if (count > static_cast<size_t>(PTRDIFF_MAX) / size) return nullptr;
        return std::realloc(block, count * size);
    }
    static void freeBlock(void* block) { std::free(block); }
};

// Items policy of one plain `new` for each item.
template <class T> class TZelNewItems : public CZelHeap {
public:
    static_assert(alignof(T) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__, "over-aligned item");
    void* allocate() { return ::operator new(sizeof(T)); }
    void release(void* item) { ::operator delete(item); }
};

// Items policy of a pool: items are cut from chunks of doubling size (64 up to 65536
// items) and freed slots are chained for reuse. Each item keeps its own stable address
// and is still constructed and destroyed one by one; the chunks go back to the system
// when the last item is released. Saves the allocator's per-item overhead and time on
// the huge lists; costs a few pointers per list, so small nested lists should not use it.
template <class T> class TZelPooledItems : public CZelHeap {
public:
    static_assert(alignof(T) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__, "over-aligned item");

    TZelPooledItems()
        : mFree(nullptr), mChunks(nullptr), mCursor(nullptr), mEnd(nullptr), mNextChunk(kFirstChunk),
          mLive(0) {}
    ~TZelPooledItems() { releaseChunks(); }
    TZelPooledItems(const TZelPooledItems&) = delete;
    TZelPooledItems& operator=(const TZelPooledItems&) = delete;

    void* allocate() {
        Slot* slot;
        if (mFree) {
            slot = mFree;
            mFree = slot->next;
        } else {
            if (mCursor == mEnd) addChunk();
            slot = mCursor++;
        }
        ++mLive;
        return slot;
    }
    void release(void* item) {
        Slot* slot = static_cast<Slot*>(item);
        slot->next = mFree;
        mFree = slot;
        if (--mLive == 0) releaseChunks();
    }

private:
    union Slot {
        Slot* next;
        alignas(T) unsigned char bytes[sizeof(T)];
    };
    struct Chunk {
        Chunk* next;
    };
    static constexpr size_t kFirstChunk = 64;
    static constexpr size_t kLastChunk = 65536;
    static constexpr size_t kHeader = (sizeof(Chunk) + alignof(Slot) - 1) / alignof(Slot) * alignof(Slot);

    void addChunk() {
        char* raw = static_cast<char*>(::operator new(kHeader + mNextChunk * sizeof(Slot)));
        Chunk* chunk = reinterpret_cast<Chunk*>(raw);
        chunk->next = mChunks;
        mChunks = chunk;
        mCursor = reinterpret_cast<Slot*>(raw + kHeader);
        mEnd = mCursor + mNextChunk;
        if (mNextChunk < kLastChunk) mNextChunk *= 2;
    }
    void releaseChunks() {
        while (mChunks) {
            Chunk* next = mChunks->next;
            ::operator delete(mChunks);
            mChunks = next;
        }
        mFree = mCursor = mEnd = nullptr;
        mNextChunk = kFirstChunk;
        mLive = 0;
    }

    Slot* mFree;
    Chunk* mChunks;
    Slot* mCursor;
    Slot* mEnd;
    size_t mNextChunk;
    size_t mLive;
};

namespace ZelLists {

// Makes an item in memory of `items`: with the list if Impl takes it, else with the
// owner, else by default (value-initialised, so plain records start at zero).
template <class Impl, class Items, class List, class Owner>
Impl* MakeItem(Items& items, List* list, Owner* owner) {
    void* place = items.allocate();
    try {
        if constexpr (std::is_constructible<Impl, List*>::value)
            return ::new (place) Impl(list);
        else if constexpr (std::is_constructible<Impl, Owner*>::value)
            return ::new (place) Impl(owner);
        else
            return ::new (place) Impl();
    } catch (...) {
        items.release(place);
        throw;
    }
}

template <class Impl, class Items> void DropItem(Items& items, Impl* item) {
    if (!item) return;
    item->~Impl();
    items.release(item);
}

[[noreturn]] void ThrowOutOfRange();

} // namespace ZelLists

// Non-template base of the general list: the back pointer through which reports go.
class CBaseObjectMgr {
protected:
    explicit CBaseObjectMgr(void* owner) : mOwner(owner) {}
    void* mOwner; // typed by the list as its Owner*
};

// The general list. Indices are compared as unsigned: -1 is past the end everywhere
// except where it means the end (newZelObject, removeObject).
template <class Impl, class I, class Owner = CZEL>
class TObjectMgr : public TZelFrontier<TZelObjectMgr<I>>, public CBaseObjectMgr {
public:
    explicit TObjectMgr(Owner* owner) : CBaseObjectMgr(owner) {}
    ~TObjectMgr() override { clear(); }
    TObjectMgr(const TObjectMgr&) = delete;
    TObjectMgr& operator=(const TObjectMgr&) = delete;

    unsigned int getCount() const override { return static_cast<unsigned int>(mItems.size()); }

    I* getZelObject(unsigned int index) const override {
        if (index >= mItems.size()) {
            report("getZelObject: Bad index value");
            return nullptr;
        }
        return mItems[index];
    }

    I* newZelObject(unsigned int index) override { return newItem(index); }

    void removeObject(unsigned int index) override {
        if (index == kZelListEnd) index = getCount() - 1; // wraps on an empty list, and fails below
        if (index >= mItems.size()) {
            report("removeObject: Bad index value");
            return;
        }
        removeAt(index);
    }

    void moveObject(int from, int to) override {
        if (from == to) return;
        unsigned int f = static_cast<unsigned int>(from), t = static_cast<unsigned int>(to), n = getCount();
        if (f >= n && t >= n) {
            report("moveObject: Bad index value");
            return;
        }
        // One good index is the caller's fault: nothing moves rather than guessing.
        if (f >= n || t >= n) return;
        typename std::vector<Impl*>::iterator b = mItems.begin();
        if (f < t)
            std::rotate(b + f, b + f + 1, b + t + 1);
        else
            std::rotate(b + t, b + f, b + f + 1);
    }

    // ---- Internal API
    // newZelObject with the concrete type.
    Impl* newItem(unsigned int index = kZelListEnd) {
        if (index == kZelListEnd) index = getCount();
        if (index > mItems.size()) {
            report("newZelObject: Bad index value");
            return nullptr;
        }
        TZelNewItems<Impl> items;
        Impl* item = nullptr;
        try {
            item = ZelLists::MakeItem<Impl>(items, this, getOwner());
            mItems.insert(mItems.begin() + index, item);
        } catch (...) {
            ZelLists::DropItem(items, item);
            report("newZelObject: Can't allocate object");
            return nullptr;
        }
        return item;
    }
    // Raises std::out_of_range "getObject: index out of range" past the end.
    Impl* at(unsigned int index) const {
        if (index >= mItems.size()) ZelLists::ThrowOutOfRange();
        return mItems[index];
    }
    // Position of `item`, or -1 when it is not in the list.
    int indexOf(const I* item) const {
        for (size_t i = 0; i < mItems.size(); ++i)
            if (static_cast<const I*>(mItems[i]) == item) return static_cast<int>(i);
        return -1;
    }
    // Removes every item, from the end.
    void clear() {
        while (!mItems.empty()) removeAt(getCount() - 1);
    }
    Owner* getOwner() const { return static_cast<Owner*>(mOwner); }
    CZEL* getZel() const { return ZelOf(getOwner()); }

private:
    void removeAt(unsigned int index) {
        TZelNewItems<Impl> items;
        ZelLists::DropItem(items, mItems[index]);
        mItems.erase(mItems.begin() + index);
    }
    void report(const char* text) const { ZelListReport(getZel(), text); }

    std::vector<Impl*> mItems;
};

// The fast list. It starts with room for `capacity` items (1024 unless told otherwise)
// and doubles when full; reserve() sets the room exactly. When the block cannot be had,
// "No memory availiable" is reported and the list is left empty with no room.
template <class Impl, class I, class Owner, class Items = TZelNewItems<Impl>>
class TRapideMgr : public TZelFrontier<TZelObjectMgr<I>>, private Items {
public:
    explicit TRapideMgr(Owner* owner, unsigned int capacity = 1024)
        : mCount(0), mCapacity(0), mItems(nullptr), mOwner(owner) {
        if (capacity) setCapacity(capacity);
    }
    ~TRapideMgr() override {
        clear();
        Items::freeBlock(mItems);
    }
    TRapideMgr(const TRapideMgr&) = delete;
    TRapideMgr& operator=(const TRapideMgr&) = delete;

    unsigned int getCount() const override { return mCount; }

    I* getZelObject(unsigned int index) const override {
        int i = static_cast<int>(index);
        if (i >= static_cast<int>(mCount)) {
            report("getZelObject: Bad index value");
            return nullptr;
        }
        // The test is signed, so a negative index is not past the end and goes unreported;
        // it answers null instead of reading in front of the block.
        if (i < 0) return nullptr;
        return mItems[i];
    }

    I* newZelObject(unsigned int index) override { return newItem(index); }

    void removeObject(unsigned int index) override {
        if (index == kZelListEnd) {
            if (mCount == 0) {
                report("removeObject: no more object to remove");
                return;
            }
            index = mCount - 1;
        } else if (index >= mCount) {
            report("removeObject: Bad index value");
            return;
        }
        removeAt(index);
    }

    void moveObject(int from, int to) override {
        if (from == to) return;
        unsigned int f = static_cast<unsigned int>(from), t = static_cast<unsigned int>(to);
        if (f >= mCount && t >= mCount) {
            report("moveObject: Bad index value");
            return;
        }
        // One good index is the caller's fault: nothing moves rather than guessing.
        if (f >= mCount || t >= mCount) return;
        Impl* item = mItems[f];
        if (f < t)
            std::memmove(mItems + f, mItems + f + 1, (t - f) * sizeof(Impl*));
        else
            std::memmove(mItems + t + 1, mItems + t, (f - t) * sizeof(Impl*));
        mItems[t] = item;
    }

    // ---- Internal API
    // newZelObject with the concrete type.
    Impl* newItem(unsigned int index = kZelListEnd) {
        if (mCount == mCapacity && !grow()) return nullptr;
        if (index == kZelListEnd) index = mCount;
        if (index > mCount) {
            report("newZelObject: Bad index value");
            return nullptr;
        }
        std::memmove(mItems + index + 1, mItems + index, (mCount - index) * sizeof(Impl*));
        // The slot is counted before the item is made, and taken out again if that fails.
        mItems[index] = nullptr;
        ++mCount;
        try {
            mItems[index] = ZelLists::MakeItem<Impl>(static_cast<Items&>(*this), this, mOwner);
        } catch (...) {
            removeAt(index);
            report("newZelObject: Can't allocate object");
            return nullptr;
        }
        return mItems[index];
    }
    // Raises std::out_of_range "getObject: index out of range" past the end.
    Impl* at(unsigned int index) const {
        if (index >= mCount) ZelLists::ThrowOutOfRange();
        return mItems[index];
    }
    // Sets the room to exactly max(count, getCount()), as a reader does once it knows
    // the count. False, with the list emptied and the report made, when that fails.
    bool reserve(unsigned int count) {
        if (count < mCount) count = mCount;
        if (count == mCapacity) return true;
        if (count == 0) {
            Items::freeBlock(mItems);
            mItems = nullptr;
            mCapacity = 0;
            return true;
        }
        return setCapacity(count);
    }
    // Removes every item, from the end; the room stays.
    void clear() {
        while (mCount) removeAt(mCount - 1);
    }
    unsigned int getCapacity() const { return mCapacity; }
    Owner* getOwner() const { return mOwner; }
    CZEL* getZel() const { return ZelOf(mOwner); }

private:
    bool grow() {
        unsigned int capacity = mCapacity ? mCapacity : 1;
        if (capacity > 0x7FFFFFFFu) return fail();
        return setCapacity(capacity * 2);
    }
    bool setCapacity(unsigned int capacity) {
        void* block = Items::resizeBlock(mItems, capacity, sizeof(Impl*));
        if (!block) return fail();
        mItems = static_cast<Impl**>(block);
        mCapacity = capacity;
        return true;
    }
    // The items are lost to the host either way; they are destroyed rather than leaked.
    bool fail() {
        clear();
        Items::freeBlock(mItems);
        mItems = nullptr;
        mCapacity = 0;
        report("No memory availiable");
        return false;
    }
    void removeAt(unsigned int index) {
        ZelLists::DropItem(static_cast<Items&>(*this), mItems[index]);
        std::memmove(mItems + index, mItems + index + 1, (mCount - index - 1) * sizeof(Impl*));
        --mCount;
    }
    void report(const char* text) const { ZelListReport(getZel(), text); }

    unsigned int mCount;
    unsigned int mCapacity;
    Impl** mItems;
    Owner* mOwner;
};

namespace ZelLists {
// Room for N records inside the list itself; none for N = 0.
template <class R, unsigned int N> struct TInlineRecords {
    R* records() const { return const_cast<R*>(mRecords); }
    R mRecords[N];
};
template <class R> struct TInlineRecords<R, 0> {
    R* records() const { return nullptr; }
};
} // namespace ZelLists

// The list of records held by value. Same operations and messages as TRapideMgr; a new
// record is all zero, and a removed one is simply overwritten. With Inline > 0 the first
// Inline records live inside the list, so that a triangle needs no block of its own; the
// room then never falls below Inline.
template <class I, class Owner, unsigned int Inline = 0, class Heap = CZelHeap>
class TSimpleMgr : public TZelFrontier<TZelObjectMgr<I>>, private ZelLists::TInlineRecords<I, Inline> {
    static_assert(std::is_trivially_copyable<I>::value, "records are moved as bytes");
    typedef ZelLists::TInlineRecords<I, Inline> InlineRecords;

public:
    explicit TSimpleMgr(Owner* owner, unsigned int capacity = 0)
        : mCount(0), mCapacity(Inline), mItems(InlineRecords::records()), mOwner(owner) {
        if (capacity > Inline) setCapacity(capacity);
    }
    ~TSimpleMgr() override {
        if (onHeap()) Heap::freeBlock(mItems);
    }
    TSimpleMgr(const TSimpleMgr&) = delete;
    TSimpleMgr& operator=(const TSimpleMgr&) = delete;

    unsigned int getCount() const override { return mCount; }

    I* getZelObject(unsigned int index) const override {
        int i = static_cast<int>(index);
        if (i >= static_cast<int>(mCount)) {
            report("getZelObject: Bad index value");
            return nullptr;
        }
        if (i < 0) return nullptr; // signed test: unreported, and never read in front of the block
        return mItems + i;
    }

    I* newZelObject(unsigned int index) override {
        if (mCount == mCapacity && !grow()) return nullptr;
        if (index == kZelListEnd) index = mCount;
        if (index > mCount) {
            report("newZelObject: Bad index value");
            return nullptr;
        }
        std::memmove(static_cast<void*>(mItems + index + 1), mItems + index, (mCount - index) * sizeof(I));
        std::memset(static_cast<void*>(mItems + index), 0, sizeof(I));
        ++mCount;
        return mItems + index;
    }

    void removeObject(unsigned int index) override {
        if (index == kZelListEnd) {
            if (mCount == 0) {
                report("removeObject: no more object to remove");
                return;
            }
            index = mCount - 1;
        } else if (index >= mCount) {
            report("removeObject: Bad index value");
            return;
        }
        std::memmove(static_cast<void*>(mItems + index), mItems + index + 1,
                     (mCount - index - 1) * sizeof(I));
        --mCount;
    }

    void moveObject(int from, int to) override {
        if (from == to) return;
        unsigned int f = static_cast<unsigned int>(from), t = static_cast<unsigned int>(to);
        if (f >= mCount && t >= mCount) {
            report("moveObject: Bad index value");
            return;
        }
        if (f >= mCount || t >= mCount) return; // one good index: nothing moves
        I record = mItems[f];
        if (f < t)
            std::memmove(static_cast<void*>(mItems + f), mItems + f + 1, (t - f) * sizeof(I));
        else
            std::memmove(static_cast<void*>(mItems + t + 1), mItems + t, (f - t) * sizeof(I));
        mItems[t] = record;
    }

    // ---- Internal API
    // Raises std::out_of_range "getObject: index out of range" past the end.
    I& at(unsigned int index) const {
        if (index >= mCount) ZelLists::ThrowOutOfRange();
        return mItems[index];
    }
    // Exactly `count` records: new ones zeroed, the room grown to exactly `count` when
    // short. False, with the list emptied and the report made, when that fails.
    bool resize(unsigned int count) {
        if (count > mCapacity && !setCapacity(count)) return false;
        if (count > mCount) std::memset(static_cast<void*>(mItems + mCount), 0, (count - mCount) * sizeof(I));
        mCount = count;
        return true;
    }
    // Sets the room to exactly max(count, getCount(), Inline).
    bool reserve(unsigned int count) {
        if (count < mCount) count = mCount;
        if (count < Inline) count = Inline;
        if (count == mCapacity) return true;
        return setCapacity(count);
    }
    // Forgets the records; the room stays.
    void clear() { mCount = 0; }
    unsigned int getCapacity() const { return mCapacity; }
    Owner* getOwner() const { return mOwner; }
    CZEL* getZel() const { return ZelOf(mOwner); }

private:
    bool onHeap() const { return mItems && mItems != InlineRecords::records(); }
    bool grow() {
        unsigned int capacity = mCapacity ? mCapacity : 1;
        if (capacity > 0x7FFFFFFFu) return fail();
        return setCapacity(capacity * 2);
    }
    // capacity >= mCount.
    bool setCapacity(unsigned int capacity) {
        if (capacity == 0 || capacity <= Inline) {
            // Back to the inline room, or to none.
            if (onHeap()) {
                I* inlineRecords = InlineRecords::records();
                if (mCount) std::memcpy(static_cast<void*>(inlineRecords), mItems, mCount * sizeof(I));
                Heap::freeBlock(mItems);
                mItems = inlineRecords;
            }
            mCapacity = Inline;
            return true;
        }
        void* block;
        if (onHeap()) {
            block = Heap::resizeBlock(mItems, capacity, sizeof(I));
        } else {
            block = Heap::resizeBlock(nullptr, capacity, sizeof(I));
            // Off the heap without inline room, the list is empty and has no block.
            if constexpr (Inline > 0)
                if (block && mCount) std::memcpy(block, mItems, mCount * sizeof(I));
        }
        if (!block) return fail();
        mItems = static_cast<I*>(block);
        mCapacity = capacity;
        return true;
    }
    bool fail() {
        if (onHeap()) Heap::freeBlock(mItems);
        mItems = InlineRecords::records();
        mCount = 0;
        mCapacity = Inline;
        report("No memory availiable");
        return false;
    }
    void report(const char* text) const { ZelListReport(getZel(), text); }

    unsigned int mCount;
    unsigned int mCapacity;
    I* mItems;
    Owner* mOwner;
};

} // namespace KeZel
