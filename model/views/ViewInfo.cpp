#include "model/views/ViewInfo.h"

#include "codec/ViewInfoCodec.h"
#include "model/light/XMLGuards.h"
#include "xml/XMLTree.h"

namespace KeZel {

using KestraXML::XIXMLElement;

// ---- Depth of field, clipping box

XIXMLElement* CZelDepthOfField::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "IZelDepthOfField::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddDepthOfField(io, parent, *this); });
}

bool CZelDepthOfField::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "IZelDepthOfField::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetDepthOfField(io, CZelXMLIO::need(parent, "Depth.Of.Field"), *this);
        return true;
    });
}

XIXMLElement* CZelClippingBox::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "IZelClippingBox::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddClippingBox(io, parent, *this); });
}

bool CZelClippingBox::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "IZelClippingBox::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetClippingBox(io, CZelXMLIO::need(parent, "Clipping.Box"), *this);
        return true;
    });
}

// ---- Filters

XIXMLElement* CZelImageSettingsFilter::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelImageSettingsFilter::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddImageSettingsFilter(io, parent, *this); });
}

bool CZelImageSettingsFilter::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelImageSettingsFilter::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetImageSettingsFilter(io, CZelXMLIO::need(parent, "Image.Settings.Filter"), *this);
        return true;
    });
}

XIXMLElement* CZelGrainFilter::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelGrainFilter::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddGrainFilter(io, parent, *this); });
}

bool CZelGrainFilter::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelGrainFilter::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetGrainFilter(io, CZelXMLIO::need(parent, "Grain.Filter"), *this);
        return true;
    });
}

XIXMLElement* CZelExposureFilter::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelExposureFilter::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddExposureFilter(io, parent, *this); });
}

bool CZelExposureFilter::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelExposureFilter::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetExposureFilter(io, CZelXMLIO::need(parent, "Exposure.Filter"), *this);
        return true;
    });
}

XIXMLElement* CZelHatchingFilter::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelHatchingFilter::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddHatchingFilter(io, parent, *this); });
}

bool CZelHatchingFilter::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelHatchingFilter::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetHatchingFilter(io, CZelXMLIO::need(parent, "Hatching.Filter"), *this);
        return true;
    });
}

XIXMLElement* CZelFilters::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "CZelFilters::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddFilters(io, parent, *this); });
}

bool CZelFilters::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "CZelFilters::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetFilters(io, CZelXMLIO::need(parent, "Filters"), *this);
        return true;
    });
}

// ---- Renderer info

CZelRendererInfo::CZelRendererInfo(CZEL* zel)
    : mZel(zel), mTree(new KestraXML::XCXMLTree), mOptions(nullptr) {
    mOptions = CZelXMLIO::add(mTree->GetRoot(), "Options");
}

CZelRendererInfo::~CZelRendererInfo() = default;

void CZelRendererInfo::copyOptionsFrom(const XIXMLElement* options) {
    if (options == mOptions) return;
    // A fresh element, so that no attribute or child of the old content stays behind.
    XIXMLElement* fresh = CZelXMLIO::add(mTree->GetRoot(), "Options");
    if (options) {
        for (KestraXML::XIXMLAttribute* a = options->GetFirstAttribute(); a; a = a->GetNext())
            a->CopyTo(fresh);
        for (KestraXML::XIXMLNode* n = options->GetFirstNode(); n; n = n->GetNext()) n->CopyTo(fresh);
    }
    mOptions->AsNode()->Destroy();
    mOptions = fresh;
}

XIXMLElement* CZelRendererInfo::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "IZelRendererInfo::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddRendererInfo(io, parent, *this); });
}

bool CZelRendererInfo::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "IZelRendererInfo::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetRendererInfo(io, CZelXMLIO::need(parent, "Renderer.Info"), *this);
        return true;
    });
}

// ---- View info

CZelViewInfo::CZelViewInfo(CZEL* zel)
    : mZel(zel), mUUID(NewZelUUID()), mLocked(false), mUIValue(0), mBackground(new CBackground(zel)),
      mBackgroundPicture(zel), mForeground(zel), mLightsGroups(this), mCameraLight(zel, false),
      mRadiosityLight(zel, true), mAtmosphere(zel), mDepthOfField(zel), mRendererInfo(zel), mClippingBox(zel),
      mEnvironmentId(), mFilters(zel), mNeonShaders(this), mLayers(this) {}

CZelViewInfo::~CZelViewInfo() = default;

XIXMLElement* CZelViewInfo::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "IZelViewInfo::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddViewInfo(io, parent, *this); });
}

bool CZelViewInfo::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "IZelViewInfo::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetViewInfo(io, CZelXMLIO::need(parent, "View.Info"), *this);
        return true;
    });
}

// ---- Old backgrounds

void ZelPictureFromBackground(const CBackground& b, CZelBackgroundPicture& p) {
    int kind = eBackgroundPictureNone;
    bool is3D = false;
    switch (b.getImageType()) {
    case eBackgroundImageStretched:
    case eBackgroundImageMotif:
        kind = eBackgroundPicture2D;
        break;
    case eBackgroundImage3D:
        kind = eBackgroundPicture2D;
        is3D = true;
        break;
    case eBackgroundImageQTVRCubic:
        kind = eBackgroundPictureMovie3D;
        is3D = true;
        break;
    default:
        break;
    }
    // A colour or a gradient wins over whatever image there was.
    int colorType = b.getColorType();
    if (colorType >= eBackgroundColorUniform && colorType <= eBackgroundColorGraduatedLine)
        kind = eBackgroundPictureUserGradient;
    p.setType(kind);
    p.set3D(is3D);
    p.setURL(b.getURL());
    p.setFirstColor(b.getColor());
    p.setSecondColor(b.getSecondColor());
}

} // namespace KeZel
