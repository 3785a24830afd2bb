#include "model/light/Background.h"

#include "codec/BackgroundCodec.h"
#include "frame/CZEL.h"
#include "model/light/XMLGuards.h"

namespace KeZel {

using KestraXML::XIXMLElement;

// ---- CBackground

CBackground::CBackground(CZEL* zel)
    : mZel(zel), mColor(ZelRGB(255, 255, 255)), mSecondColor(ZelRGB(0, 100, 255)), mUpDirection(),
      mLinePower(1.0), mOriginObsolete(0.0), mImageType(eBackgroundImageNone),
      mColorType(eBackgroundColorGraduated), mUseDefault(true), mOrigin(0.0), mDirectionAngle(0.0),
      mId(NewZelUUID()) {
    mUpDirection.x = 1.296153;
    mUpDirection.y = 1.0;
    mUpDirection.z = 0.0;
}

int CBackground::getType() const {
    if (mImageType != eBackgroundImageNone) return mImageType + 2;
    return mColorType > 0 ? mColorType - 1 : 0;
}

void CBackground::setType(int type) {
    if (type < 3) {
        mImageType = eBackgroundImageNone;
        mColorType = type + 1;
    } else {
        mColorType = eBackgroundColorNone;
        mImageType = type - 2;
    }
}

void CBackground::setLinePower(double power) {
    mLinePower = power;
    if (mZel && (power < 0.0 || power > 100.0)) {
        mLinePower = power < 0.0 ? 0.0 : 100.0;
        mZel->report("Method setLinePower has clipped a value out of range.");
    }
    // The gradient has a power of 1 or one of 10 and above, nothing between.
    if (mLinePower < 10.0) mLinePower = 1.0;
}

XIXMLElement* CBackground::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelBackground::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddBackground(io, parent, *this); });
}

bool CBackground::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelBackground::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetBackground(io, ZelFindBackground(parent), *this);
        return true;
    });
}

// ---- CZelBackgroundPicture

XIXMLElement* CZelBackgroundPicture::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelBackgroundPicture::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddBackgroundPicture(io, parent, *this); });
}

bool CZelBackgroundPicture::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelBackgroundPicture::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetBackgroundPicture(io, CZelXMLIO::need(parent, "Background.Picture"), *this);
        return true;
    });
}

// ---- CZelForeground

XIXMLElement* CZelForeground::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "IZelForeground::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddForeground(io, parent, *this); });
}

bool CZelForeground::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "IZelForeground::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetForeground(io, CZelXMLIO::need(parent, "Foregroung"), *this);
        return true;
    });
}

// ---- CZelEnvironment

CZelEnvironment::CZelEnvironment(CZEL* zel)
    : mZel(zel), mUUID(NewZelUUID()), mName("Environment 1"), mClouds(zel), mFog(zel),
      mBackgroundPicture(zel), mForeground(zel) {
    Kestra::XAssertPointer(zel, "CZelEnvironment::CZelEnvironment: no manager");
}

XIXMLElement* CZelEnvironment::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelEnvironment::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddEnvironment(io, parent, *this); });
}

bool CZelEnvironment::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelEnvironment::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetEnvironment(io, CZelXMLIO::need(parent, "Environment"), *this);
        return true;
    });
}

// ---- CZelGround

CZelGround::CZelGround(CZEL* zel)
    : mZel(zel), mActive(false), mId(NewZelUUID()), mHeight(-10.0), mProperty(zel) {
    Kestra::XAssertPointer(zel, "CZelGround::CZelGround: no manager");
    mProperty.setName("Ground Material Name");
}

XIXMLElement* CZelGround::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelGround::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddGround(io, parent, *this); });
}

bool CZelGround::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelGround::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetGround(io, CZelXMLIO::need(parent, "Ground"), *this);
        return true;
    });
}

} // namespace KeZel
