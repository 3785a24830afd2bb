// Element forms of object definitions (Object.Definition, InternalComponentDefinition) and
// object instances (Object.Instance), the scene's lists of them, and the keys that the
// delegates of definitions and instances keep in Object.Data and Instance.Data.
#pragma once

#include "codec/ZelXMLIO.h"
#include "model/objects/ObjectDefinition.h"
#include "model/objects/ObjectInstance.h"

namespace KeZel {

class CLight;
class C3DPlant;
class C3DPlantRef;
class CZelAnimatedObject;
class CZelAnimatedObjectInstance;

// ---- Object.Data and Instance.Data

// Gives `target` copies of the attributes and children of `source`, in place of its own.
void ZelCopyDataElement(KestraXML::XIXMLElement* target, const KestraXML::XIXMLElement* source);

// Runs a delegate's reading of its owner's data element. Identities are kept, since the
// data is the owner's own. A failure is swallowed: the delegate keeps what was read so far
// and its defaults for the rest, as a new delegate over empty data does.
template <class F> void ZelReadDelegateData(CZEL* zel, F read) {
    try {
        CZelXMLIO io(zel, true);
        read(io);
    } catch (...) {
    }
}

// Writes the keys of a delegate into a data element that holds them already: each key
// takes the place of its old self (children are removed first, attributes overwritten).
class CZelDataWriter {
public:
    CZelDataWriter(const CZelXMLIO& io, KestraXML::XIXMLElement* data) : mIO(io), mData(data) {}

    void flag(const char* key, bool value) const;
    void integer(const char* key, int value) const;
    void real(const char* key, double value) const;
    void label(const char* attribute, const CZelLabel* table, int value) const;
    void uuid(const char* attribute, const CZelUUID& value) const;
    void languages(const char* key, const CZelLanguageTexts& texts) const;
    void date(const char* key, const CZelDate& date) const;
    // A new empty child in place of the old ones of that name.
    KestraXML::XIXMLElement* child(const char* key) const;
    // Removes the children of that name.
    void remove(const char* key) const;

private:
    // Removes the children `key`, runs `write`, and moves what it added to their place.
    template <class Put> void put(const char* key, Put write) const;

    const CZelXMLIO& mIO;
    KestraXML::XIXMLElement* mData;
};

// ---- Definitions

// Element Object.Definition under `parent`, in place of any earlier one; the delegate
// first brings Object.Data up to date.
KestraXML::XIXMLElement* ZelAddObjectDefinition(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                                CZelZelObjectDefinition& definition);
// Reads an Object.Definition element, all but its identity, and sets the class last so
// that the new delegate finds Object.Data filled.
void ZelGetObjectDefinition(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                            CZelZelObjectDefinition& definition);
// The same, and the element's UUID when it has one.
void ZelGetObjectDefinitionWithUUID(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                                    CZelZelObjectDefinition& definition);

// Element InternalComponentDefinition: UUID, Geometry.Level, the Points and Polygons data
// blocks (given their providers here) and the Object.Definition.
KestraXML::XIXMLElement* ZelAddInternalComponent(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                                 CZelZelObjectDefinition& definition);
void ZelGetInternalComponent(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                             CZelZelObjectDefinition& definition);

// ---- Instances

KestraXML::XIXMLElement* ZelAddObjectInstance(const CZelXMLIO& io, KestraXML::XIXMLElement* parent,
                                              CZelObjectInstance& instance);
// Reads Instance.Data first and the class last, so that the new delegate finds its data.
void ZelGetObjectInstance(const CZelXMLIO& io, const KestraXML::XIXMLElement* element,
                          CZelObjectInstance& instance);

// ---- The scene's elements, below the file node. A reader without its element leaves
// the scene as it is and answers false.

// InternalComponentDefinitions.
KestraXML::XIXMLElement* ZelPutObjectDefinitions(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                                 CObjectDefinitionList& definitions);
bool ZelGetObjectDefinitions(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode,
                             CObjectDefinitionList& definitions);
// Object.Definition, the object of the file, written in that form whatever its class.
KestraXML::XIXMLElement* ZelPutObjectDefinition(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                                CZelZelObjectDefinition& definition);
bool ZelGetSceneObjectDefinition(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode,
                                 CZelZelObjectDefinition& definition);
// Object.Instances.
KestraXML::XIXMLElement* ZelPutObjectInstances(const CZelXMLIO& io, KestraXML::XIXMLElement* fileNode,
                                               CObjectInstanceList& instances);
bool ZelGetObjectInstances(const CZelXMLIO& io, const KestraXML::XIXMLElement* fileNode,
                           CObjectInstanceList& instances);

// ---- Delegates' keys in their owner's data element

// "ModelObject" instance: attribute Component.UUID, Properties when there are any.
void ZelPutComponentInstanceData(const CZelXMLIO& io, KestraXML::XIXMLElement* data,
                                 CZelInternalComponentInstance& delegate);
void ZelGetComponentInstanceData(const CZelXMLIO& io, const KestraXML::XIXMLElement* data,
                                 CZelInternalComponentInstance& delegate);
// "ZelObject" instance and its heirs: attribute Current.Overload, Properties and Lights
// when there are any (the URL is kept in the data at all times).
void ZelPutZelObjectInstanceData(const CZelXMLIO& io, KestraXML::XIXMLElement* data,
                                 CZelZelObjectInstance& delegate);
void ZelGetZelObjectInstanceData(const CZelXMLIO& io, const KestraXML::XIXMLElement* data,
                                 CZelZelObjectInstance& delegate);
// "3DPlant" definition: attribute Plant.Type, Plant.Setups.
void ZelPutPlantData(const CZelXMLIO& io, KestraXML::XIXMLElement* data, const C3DPlant& plant);
void ZelGetPlantData(const CZelXMLIO& io, const KestraXML::XIXMLElement* data, C3DPlant& plant);
// "3DPlant" instance: Heliodon.Attached, Time, attribute Color. Data without Time is no
// plant's data and leaves the delegate as it is.
void ZelPutPlantRefData(const CZelXMLIO& io, KestraXML::XIXMLElement* data, const C3DPlantRef& plant);
void ZelGetPlantRefData(const CZelXMLIO& io, const KestraXML::XIXMLElement* data, C3DPlantRef& plant);
// "AnimatedObject" definition: attribute External.File.Type, Index, Takes.
void ZelPutAnimatedObjectData(const CZelXMLIO& io, KestraXML::XIXMLElement* data,
                              const CZelAnimatedObject& object);
void ZelGetAnimatedObjectData(const CZelXMLIO& io, const KestraXML::XIXMLElement* data,
                              CZelAnimatedObject& object);
// "AnimatedObject" instance: the four frame numbers, Overloaded.Properties when there are
// any.
void ZelPutAnimatedInstanceData(const CZelXMLIO& io, KestraXML::XIXMLElement* data,
                                CZelAnimatedObjectInstance& instance);
void ZelGetAnimatedInstanceData(const CZelXMLIO& io, const KestraXML::XIXMLElement* data,
                                CZelAnimatedObjectInstance& instance);
// "LightObject" definition or instance: one Light element.
void ZelPutLightData(const CZelXMLIO& io, KestraXML::XIXMLElement* data, const CLight& light);
void ZelGetLightData(const CZelXMLIO& io, const KestraXML::XIXMLElement* data, CLight& light);

} // namespace KeZel
