// Object definitions: the reusable models that instances place in the scene. A class name
// picks a delegate (plant, object light, animated object) that keeps what is particular to
// that class in the definition's Object.Data element, so that data the library doesn't
// model survives a read and a write.
#pragma once

#include "frame/ObjectLists.h"
#include "frame/UUID.h"
#include "model/geometry/Property.h"
#include "model/objects/IZelObjectDefinition.h"
#include "model/objects/ZelString.h"
#include "xml/XMLTree.h"

#include <memory>
#include <string>

namespace KeZel {

class CZEL;
class CZelZelObjectDefinition;
class CObjectSetup;

typedef TObjectMgr<CObjectSetup, IZelZelObjectSetup, CZelZelObjectDefinition> CObjectSetupList;
typedef TObjectMgr<CZelZelObjectDefinition, IZelZelObjectDefinition> CObjectDefinitionList;

// A named configuration of a definition; a fresh identity ("Can't create UUID").
class CObjectSetup : public TZelFrontier<IZelZelObjectSetup> {
public:
    explicit CObjectSetup(CObjectSetupList* list);

    const IZelString* getName() const override { return &mName; }
    IZelString* getName() override { return &mName; }
    const CZelUUID* getUUID() const override { return &mUUID; }
    void setUUID(const CZelUUID& uuid) override { mUUID = uuid; }

    CZelString& name() { return mName; }
    const CZelString& name() const { return mName; }

private:
    CZelUUID mUUID;
    CZelString mName;
};

class CZelZelObjectDefinition : public TZelFrontier<IZelZelObjectDefinition> {
public:
    // What is particular to one class of definition. Its constructor reads Object.Data;
    // updateObjectData writes the same keys back.
    class IDelegate {
    public:
        virtual ~IDelegate() {}
        virtual void updateObjectData() = 0;
    };

    // `zel` must not be null. Raises "Can't create UUID" when no identity can be made.
    explicit CZelZelObjectDefinition(CZEL* zel);
    explicit CZelZelObjectDefinition(CObjectDefinitionList* list);
    ~CZelZelObjectDefinition() override;
    CZelZelObjectDefinition(const CZelZelObjectDefinition&) = delete;
    CZelZelObjectDefinition& operator=(const CZelZelObjectDefinition&) = delete;

    // A "ModelObject" is written as InternalComponentDefinition with its geometry blocks
    // and the Object.Definition inside; any other class as Object.Definition alone.
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads the element that putInXML would write for the class held at the call.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const CZelUUID* getUUID() const override { return &mUUID; }
    void setUUID(const CZelUUID& uuid) override { mUUID = uuid; }
    const IZelString* getName() const override { return &mName; }
    IZelString* getName() override { return &mName; }
    // Empty when the name has no text in the current language.
    const char* getDefaultName() const override;
    const char* getClass() const override { return mClass.c_str(); }
    void setClass(const char* className) override;
    const CZelVector* getAnchor() const override { return &mAnchor; }
    void setAnchor(const CZelVector& anchor) override { mAnchor = anchor; }
    int getPlacement() const override { return mPlacement; }
    void setPlacement(int placement) override { mPlacement = placement; }
    const CZelVector* getUp() const override { return &mUp; }
    void setUp(const CZelVector& up) override { mUp = up; }
    double getInitialAngle() const override { return mInitialAngle; }
    void setInitialAngle(double angle) override { mInitialAngle = angle; }
    const CZelVector* getModelRotation() const override { return &mModelRotation; }
    void setModelRotation(const CZelVector& rotation) override { mModelRotation = rotation; }
    const double* getModelRotationMatrix() const override { return mMatrix; }
    void setModelRotationMatrix(const double* matrix) override;
    const CZelVector* getModelPosition() const override { return &mModelPosition; }
    void setModelPosition(const CZelVector& position) override { mModelPosition = position; }
    int getModelOrigin() const override { return mModelOrigin; }
    void setModelOrigin(int origin) override { mModelOrigin = origin; }
    void updateObjectData() override;
    const KestraXML::XIXMLElement* getObjectData() const override;
    KestraXML::XIXMLElement* getObjectData() override;
    const KestraXML::XIXMLElement* getInstanceData() const override;
    KestraXML::XIXMLElement* getInstanceData() override;
    const TZelObjectMgr<CZelProperty>* getProperties() const override { return &mProperties; }
    TZelObjectMgr<CZelProperty>* getProperties() override { return &mProperties; }
    const IZelString* getDescription1() const override { return &mDescription1; }
    IZelString* getDescription1() override { return &mDescription1; }
    const IZelString* getDescription2() const override { return &mDescription2; }
    IZelString* getDescription2() override { return &mDescription2; }
    const IZelString* getComment() const override { return &mComment; }
    IZelString* getComment() override { return &mComment; }
    int getUIValue() const override { return mUIValue; }
    void setUIValue(int value) override { mUIValue = value; }
    const CZelUUID* getLightGroupId() const override { return &mLightGroupId; }
    void setLightGroupId(const CZelUUID& id) override { mLightGroupId = id; }
    const TZelObjectMgr<IZelZelObjectSetup>* getSetups() const override { return &mSetups; }
    TZelObjectMgr<IZelZelObjectSetup>* getSetups() override { return &mSetups; }
    const IZel3DPlant* get3DPlant() const override;
    IZel3DPlant* get3DPlant() override;
    const IZelObjectLight* getObjectLight() const override;
    IZelObjectLight* getObjectLight() override;
    const IZelAnimatedObject* getAnimatedObject() const override;
    IZelAnimatedObject* getAnimatedObject() override;
    int getGeometryLevel() const override { return mGeometryLevel; }
    void setGeometryLevel(int level) override { mGeometryLevel = level; }

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    IDelegate* delegate() const { return mDelegate.get(); }
    // Object.Data, made again if a host took it away.
    KestraXML::XIXMLElement* objectData();
    CZelString& name() { return mName; }
    const CZelString& name() const { return mName; }
    CZelString& description1() { return mDescription1; }
    const CZelString& description1() const { return mDescription1; }
    CZelString& description2() { return mDescription2; }
    const CZelString& description2() const { return mDescription2; }
    CZelString& comment() { return mComment; }
    const CZelString& comment() const { return mComment; }
    CPropertyList& properties() { return mProperties; }
    const CPropertyList& properties() const { return mProperties; }
    CObjectSetupList& setups() { return mSetups; }
    const CObjectSetupList& setups() const { return mSetups; }

private:
    KestraXML::XIXMLElement* dataChild(const char* name) const;

    CZEL* mZel;
    std::unique_ptr<IDelegate> mDelegate;
    // The root holds Object.Data and Instance.Data.
    KestraXML::XCXMLTree mData;
    CZelUUID mUUID;
    std::string mClass;
    CZelVector mAnchor;
    CZelVector mUp;
    CPropertyList mProperties;
    int mPlacement;
    double mInitialAngle;
    CZelUUID mLightGroupId;
    CZelVector mModelRotation;
    CZelVector mModelPosition;
    int mModelOrigin;
    CZelString mName;
    CZelString mDescription1;
    CZelString mDescription2;
    CZelString mComment;
    int mUIValue;
    double mMatrix[16];
    CObjectSetupList mSetups;
    int mGeometryLevel;
};

} // namespace KeZel
