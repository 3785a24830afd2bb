#include "model/objects/InsertionObject.h"

#include "codec/LayerCodec.h"
#include "frame/CZEL.h"
#include "model/light/XMLGuards.h"

namespace KeZel {

using KestraXML::XIXMLElement;

CZelInsertionObject::CZelInsertionObject(CZEL* zel)
    : mZel(zel), mActive(false), mAxesPositions(), mPerpectiveToolPositions(), mReperePositions(),
      mSizeAxis(0), mAxesVisible(false), mModelVisible(false), mPerpectiveToolVisible(false),
      mYAxeInverted(false) {}

bool CZelInsertionObject::checkIndex(unsigned int index, const char* report) const {
    if (index < kPositions) return true;
    if (mZel) mZel->report(report);
    return false;
}

const CZelVector2D* CZelInsertionObject::getAxesPosition(unsigned int index) const {
    return checkIndex(index, "getAxesPosition: index out of range") ? &mAxesPositions[index] : nullptr;
}

void CZelInsertionObject::setAxesPosition(unsigned int index, const CZelVector2D& position) {
    if (checkIndex(index, "setAxesPosition: index out of range")) mAxesPositions[index] = position;
}

const CZelVector2D* CZelInsertionObject::getPerpectiveToolPosition(unsigned int index) const {
    return checkIndex(index, "getPerpectiveToolPosition: index out of range")
               ? &mPerpectiveToolPositions[index]
               : nullptr;
}

void CZelInsertionObject::setPerpectiveToolPosition(unsigned int index, const CZelVector2D& position) {
    if (checkIndex(index, "setPerpectiveToolPosition: index out of range"))
        mPerpectiveToolPositions[index] = position;
}

const CZelVector* CZelInsertionObject::getReperePosition(unsigned int index) const {
    return checkIndex(index, "getReperePosition: index out of range") ? &mReperePositions[index] : nullptr;
}

void CZelInsertionObject::setReperePosition(unsigned int index, const CZelVector& position) {
    if (checkIndex(index, "setReperePosition: index out of range")) mReperePositions[index] = position;
}

void CZelInsertionObject::copyPositionsFrom(const CZelInsertionObject& other) {
    for (int i = 0; i < kPositions; ++i) {
        mAxesPositions[i] = other.mAxesPositions[i];
        mPerpectiveToolPositions[i] = other.mPerpectiveToolPositions[i];
        mReperePositions[i] = other.mReperePositions[i];
    }
}

XIXMLElement* CZelInsertionObject::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "IZelInsertionObject::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddInsertionObject(io, parent, *this); });
}

bool CZelInsertionObject::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "IZelInsertionObject::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetInsertionObject(io, CZelXMLIO::need(parent, "InsertionObject"), *this);
        return true;
    });
}

} // namespace KeZel
