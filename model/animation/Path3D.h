// 3D paths: curves of Bezier points along which an animated value can move.
#pragma once

#include "frame/ObjectLists.h"
#include "model/animation/IZel3DPath.h"

namespace KeZel {

class CZEL;
class C3DPath;
class CBezierPoint;

typedef TObjectMgr<CBezierPoint, CZelBezierPoint, C3DPath> CBezierPointList;
typedef TObjectMgr<C3DPath, CZel3DPath> C3DPathList;

class CBezierPoint : public TZelFrontier<CZelBezierPoint> {
public:
    explicit CBezierPoint(CBezierPointList* list);

    const CZelVector* getPosition() const override { return &mPosition; }
    void setPosition(const CZelVector& position) override { mPosition = position; }
    const CZelVector* getCPBefore() const override { return &mCPBefore; }
    void setCPBefore(const CZelVector& point) override { mCPBefore = point; }
    const CZelVector* getCPAfter() const override { return &mCPAfter; }
    void setCPAfter(const CZelVector& point) override { mCPAfter = point; }
    bool areLocked() const override { return mLocked; }
    void setLocked(bool locked) override { mLocked = locked; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads the first Bezier.Point child of `parent`.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;

private:
    CZEL* mZel;
    CZelVector mPosition;
    CZelVector mCPBefore;
    CZelVector mCPAfter;
    bool mLocked;
};

class C3DPath : public TZelFrontier<CZel3DPath> {
public:
    // An open path without points and with a null identity.
    explicit C3DPath(CZEL* zel);
    explicit C3DPath(C3DPathList* list);

    const CZelUUID* getUUID() const override { return &mUUID; }
    void setUUID(const CZelUUID& uuid) override { mUUID = uuid; }
    bool isClosed() const override { return mClosed; }
    void setClosed(bool closed) override { mClosed = closed; }
    const TZelObjectMgr<CZelBezierPoint>* getPoints() const override { return &mPoints; }
    TZelObjectMgr<CZelBezierPoint>* getPoints() override { return &mPoints; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads the first Path.3D child of `parent`.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;

    CZEL* getZel() const { return mZel; }
    CBezierPointList& points() { return mPoints; }
    const CBezierPointList& points() const { return mPoints; }

private:
    CZEL* mZel;
    CZelUUID mUUID;
    bool mClosed;
    CBezierPointList mPoints;
};

} // namespace KeZel
