#include "model/animation/Scenario.h"

#include "frame/ValueHelpers.h"
#include "codec/ScenarioCodec.h"
#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "model/light/XMLGuards.h"

namespace KeZel {

using KestraXML::XIXMLElement;

namespace {

// The manager of a sequence's list; a list that reaches none is a failed assertion.
CZEL* NeedZel(CSequenceList* list) {
    CZEL* zel = list ? list->getZel() : nullptr;
    Kestra::XAssertPointer(zel, "CZelSequence::CZelSequence: no manager");
    return zel;
}

} // namespace

// ---- CZelSequence

CZelSequence::CZelSequence(CSequenceList* list)
    : mOwner(list), mZel(NeedZel(list)), mStartFrame(0), mEndFrame(250), mName("Sequence 0"),
      mPosition(ZelVector(50, 50, -60)), mTarget(ZelVector(50, 50, 50)), mViewFlags(2), mRoll(0.00001),
      mFocal(50.0), mViewInfo(mZel), mUUID(NewZelUUID()), mTargetType(0), mTargetDistance(100.0),
      mHorizontalAngle(0.0), mVerticalAngle(0.0), mPathTangent(ZelVector(1, 0, 0)), mViewOpt(mZel),
      mObjectUUID() {
    // Up is Z for the library; a client of the old convention has Y up.
    mZel->exportPoint(mPosition);
    mZel->exportPoint(mTarget);
}

void CZelSequence::setTargetType(int type) {
    // 1 is kept though it has no label; it fails when written.
    mTargetType = (type >= 0 && type <= 3) ? type : 0;
}

void CZelSequence::setCurrent() {
    if (mOwner)
        for (unsigned int i = 0; i < mOwner->getCount(); ++i) mOwner->at(i)->mViewFlags &= ~1;
    mViewFlags |= 1;
}

void CZelSequence::setFlagged(bool flagged) {
    if (flagged)
        mViewFlags |= 2;
    else
        mViewFlags &= ~2;
}

void CZelSequence::setFocal(double focal) {
    mFocal = focal;
    if (!(mFocal >= 0.0))
        mFocal = 0.0;
    else if (mFocal > 180.0)
        mFocal = 180.0;
    else
        return;
    mZel->report("Method setFocal has clipped a value out of range.");
}

XIXMLElement* CZelSequence::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelSequence::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddSequence(io, parent, *this); });
}

bool CZelSequence::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelSequence::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetSequence(io, CZelXMLIO::need(parent, "Sequence"), *this);
        return true;
    });
}

// ---- CZelScenario

CZelScenario::CZelScenario(CZEL* zel)
    : mZel(zel), mSequences(this), mElements(this), mCurrentFrame(0), mCurrentSequence(0), mMaxTime(500),
      mFPS(25), mSnds(this), mStartVisibleTime(0), mEndVisibleTime(500), mTimeGuides(this) {}

CZelScenario::CZelScenario(CScenarioList* list) : CZelScenario(list ? list->getZel() : nullptr) {}

XIXMLElement* CZelScenario::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelScenario::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddScenario(io, parent, *this); });
}

bool CZelScenario::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelScenario::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetScenario(io, CZelXMLIO::need(parent, "Scenario"), *this);
        return true;
    });
}

} // namespace KeZel
