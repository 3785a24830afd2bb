#include "model/views/ParallelView.h"

#include "codec/ParallelViewCodec.h"
#include "frame/CZEL.h"
#include "model/light/XMLGuards.h"

namespace KeZel {

using KestraXML::XIXMLElement;

CZelParallelView::CZelParallelView(CZEL* zel)
    : mZel(zel), mViewInfo(zel), mType(1), mViewFlags(2), mNorthAngle(0.0), mSize(0.0), mPosition(),
      mTarget(), mViewOpt(zel), mSpecialShading(false) {}

XIXMLElement* CZelParallelView::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "IZelParallelView::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddParallelView(io, parent, *this); });
}

bool CZelParallelView::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "IZelParallelView::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetParallelView(io, CZelXMLIO::need(parent, "Parallel.View"), *this);
        return true;
    });
}

} // namespace KeZel
