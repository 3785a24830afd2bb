// Layers, which sort object instances, and the layer settings of the scene: the active
// layer and, for each class of object, the layer into which a new instance goes.
#pragma once

#include "frame/ObjectLists.h"
#include "frame/UUID.h"
#include "model/objects/IZelLayer.h"

#include <map>
#include <string>

namespace KeZel {

class CZEL;

class CZelLayer;
typedef TObjectMgr<CZelLayer, IZelLayer> CLayerList;

class CZelLayer : public TZelFrontier<IZelLayer> {
public:
    // A layer has a fresh identity; raises "Can't create UUID" when none can be made.
    explicit CZelLayer(CZEL* zel = nullptr);
    explicit CZelLayer(CLayerList* list);

    const CZelUUID* getUUID() const override { return &mUUID; }
    void setUUID(const CZelUUID& uuid) override { mUUID = uuid; }
    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    int getUIValue() const override { return mUIValue; }
    void setUIValue(int value) override { mUIValue = value; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Layer.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;

    CZEL* getZel() const { return mZel; }

private:
    CZEL* mZel;
    std::string mName;
    CZelUUID mUUID;
    int mUIValue;
};

class CZelLayerInfo : public TZelFrontier<IZelLayerInfo> {
public:
    // The classes whose default layer goes to files, in the order in which they are
    // written. "ModelObject" is not among them.
    static const char* const kFileClasses[5];

    explicit CZelLayerInfo(CZEL* zel = nullptr) : mZel(zel), mActiveLayer() {}

    const CZelUUID* getActiveLayer() const override { return &mActiveLayer; }
    void setActiveLayer(const CZelUUID& layer) override { mActiveLayer = layer; }
    // Null for a null class name.
    const CZelUUID* getDefaultLayer(const char* className) override;
    void setDefaultLayer(const char* className, const CZelUUID& layer) override;
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Layers.Info.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    // The default layer of a class without making an entry: null identity when it has none.
    CZelUUID defaultLayerOf(const std::string& className) const;

private:
    CZEL* mZel;
    CZelUUID mActiveLayer;
    std::map<std::string, CZelUUID> mDefaultLayers;
};

} // namespace KeZel
