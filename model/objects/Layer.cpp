#include "model/objects/Layer.h"

#include "codec/LayerCodec.h"
#include "frame/CZEL.h"
#include "model/light/XMLGuards.h"

namespace KeZel {

using KestraXML::XIXMLElement;

// ---- CZelLayer

CZelLayer::CZelLayer(CZEL* zel) : mZel(zel), mUUID(NewZelUUID()), mUIValue(0) {}

CZelLayer::CZelLayer(CLayerList* list) : CZelLayer(list ? list->getZel() : nullptr) {}

XIXMLElement* CZelLayer::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "IZelLayer::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddLayer(io, parent, *this); });
}

bool CZelLayer::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "IZelLayer::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetLayer(io, CZelXMLIO::need(parent, "Layer"), *this);
        return true;
    });
}

// ---- CZelLayerInfo

const char* const CZelLayerInfo::kFileClasses[5] = {"3DPlant", "ZelObject", "Billboard", "LightObject",
                                                    "AnimatedObject"};

const CZelUUID* CZelLayerInfo::getDefaultLayer(const char* className) {
    if (!className) return nullptr;
    return &mDefaultLayers[className];
}

void CZelLayerInfo::setDefaultLayer(const char* className, const CZelUUID& layer) {
    if (className) mDefaultLayers[className] = layer;
}

CZelUUID CZelLayerInfo::defaultLayerOf(const std::string& className) const {
    std::map<std::string, CZelUUID>::const_iterator it = mDefaultLayers.find(className);
    return it == mDefaultLayers.end() ? CZelUUID() : it->second;
}

XIXMLElement* CZelLayerInfo::putInXML(XIXMLElement* parent) {
    return ZelGuardPut(mZel, "IZelLayerInfo::putInXML",
                       [&](const CZelXMLIO& io) { return ZelAddLayerInfo(io, parent, *this); });
}

bool CZelLayerInfo::initWithXML(XIXMLElement* parent) {
    return ZelGuardInit(mZel, "IZelLayerInfo::initWithXML", [&](const CZelXMLIO& io) {
        ZelGetLayerInfo(io, CZelXMLIO::need(parent, "Layers.Info"), *this);
        return true;
    });
}

} // namespace KeZel
