#include "codec/ObjectCodec.h"

#include "codec/LightCodec.h"
#include "codec/PropertyCodec.h"
#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "frame/Providers.h"
#include "model/objects/AnimatedObject.h"
#include "model/objects/Plant.h"

namespace KeZel {

using KestraXML::XIXMLAttribute;
using KestraXML::XIXMLElement;
using KestraXML::XIXMLNode;

namespace {

// Each pair of the file goes to the text under its language code; other languages stay.
void AddTexts(CZelString& target, const CZelLanguageTexts& texts) {
    for (const auto& t : texts) target.setText(t.first, t.second.c_str());
}

XIXMLNode* LastChild(const XIXMLElement* e) {
    XIXMLNode* last = nullptr;
    for (XIXMLNode* n = e->GetFirstNode(); n; n = n->GetNext()) last = n;
    return last;
}

} // namespace

// ---- Data elements

void ZelCopyDataElement(XIXMLElement* target, const XIXMLElement* source) {
    Kestra::XAssertPointer(target);
    while (XIXMLAttribute* a = target->GetFirstAttribute()) a->Destroy();
    while (XIXMLNode* n = target->GetFirstNode()) n->Destroy();
    if (!source) return;
    for (XIXMLAttribute* a = source->GetFirstAttribute(); a; a = a->GetNext()) a->CopyTo(target);
    for (XIXMLNode* n = source->GetFirstNode(); n; n = n->GetNext()) n->CopyTo(target);
}

// The new child takes the place of the first old one of that name, so that data read from
// a file keeps its order through any number of writes.
template <class Put> void CZelDataWriter::put(const char* key, Put write) const {
    XIXMLNode* before = CZelXMLIO::removeItems(mData, key);
    XIXMLNode* last = LastChild(mData);
    write();
    if (before && LastChild(mData) != last) CZelXMLIO::placeLast(mData, before);
}

void CZelDataWriter::flag(const char* key, bool value) const {
    put(key, [&] { mIO.putFlag(mData, key, value); });
}

void CZelDataWriter::integer(const char* key, int value) const {
    put(key, [&] { mIO.putInt(mData, key, value); });
}

void CZelDataWriter::real(const char* key, double value) const {
    put(key, [&] { mIO.putDouble(mData, key, value); });
}

void CZelDataWriter::label(const char* attribute, const CZelLabel* table, int value) const {
    mIO.putLabel(mData, attribute, table, value);
}

void CZelDataWriter::uuid(const char* attribute, const CZelUUID& value) const {
    mIO.putUUID(mData, attribute, value);
}

void CZelDataWriter::languages(const char* key, const CZelLanguageTexts& texts) const {
    put(key, [&] { mIO.putLanguages(mData, key, texts); });
}

void CZelDataWriter::date(const char* key, const CZelDate& date) const {
    put(key, [&] { mIO.putDate(mData, key, date); });
}

XIXMLElement* CZelDataWriter::child(const char* key) const {
    return CZelXMLIO::replace(mData, key);
}

void CZelDataWriter::remove(const char* key) const {
    CZelXMLIO::removeAll(mData, key);
}

// ---- Definitions

XIXMLElement* ZelAddObjectDefinition(const CZelXMLIO& io, XIXMLElement* parent, CZelZelObjectDefinition& d) {
    XIXMLElement* e = CZelXMLIO::replace(parent, "Object.Definition");
    d.updateObjectData();
    io.putEnString(e, "Class", d.getClass());
    io.putUUID(e, "UUID", *d.getUUID());
    io.putLanguages(e, "Name", d.name().getTexts());
    io.putVector(e, "Anchor", *d.getAnchor());
    io.putLabel(e, "Placement", kPlacementLabels, d.getPlacement());
    io.putVector(e, "Up", *d.getUp());
    io.putDouble(e, "Initial.Angle", d.getInitialAngle());
    if (d.properties().getCount()) ZelPutProperties(io, e, d.properties());
    io.putUUID(e, "LightGroupID", *d.getLightGroupId());
    io.putVector(e, "Model.Rotation", *d.getModelRotation());
    io.putMatrix(e, d.getModelRotationMatrix());
    io.putVector(e, "Model.Position", *d.getModelPosition());
    io.putLanguages(e, "Description1", d.description1().getTexts());
    io.putLanguages(e, "Description2", d.description2().getTexts());
    io.putLanguages(e, "Comment", d.comment().getTexts());
    io.putInt(e, "UIValue", d.getUIValue());
    io.putLabel(e, "Model.Origin", kModelOriginLabels, d.getModelOrigin());
    io.putList(e, "Setups", "Setup", d.setups(), [&](XIXMLElement* outer, const CObjectSetup& s) {
        XIXMLElement* x = CZelXMLIO::add(outer, "Setup");
        io.putUUID(x, "UUID", *s.getUUID());
        io.putLanguages(x, "Name", s.name().getTexts());
    });
    d.objectData()->AsNode()->CopyTo(e);
    return e;
}

void ZelGetObjectDefinition(const CZelXMLIO& io, const XIXMLElement* e, CZelZelObjectDefinition& d) {
    const XIXMLElement* cls = CZelXMLIO::need(e, "Class");
    ZelCopyDataElement(d.objectData(), CZelXMLIO::find(e, "Object.Data"));
    AddTexts(d.name(), io.getLanguages(e, "Name"));
    d.setAnchor(io.getVector(e, "Anchor"));
    d.setPlacement(io.getLabel(e, "Placement", kPlacementLabels));
    // A direction: a transform in force turns it without moving it.
    CZelVector up = io.getRawVector(e, "Up");
    io.mZel->importDirection(up);
    d.setUp(up);
    d.setInitialAngle(io.getDouble(e, "Initial.Angle"));
    d.setModelRotation(io.getVector(e, "Model.Rotation"));
    d.setModelPosition(io.getVector(e, "Model.Position"));
    d.setUIValue(io.getInt(e, "UIValue"));
    d.setModelOrigin(io.getLabel(e, "Model.Origin", kModelOriginLabels));
    double matrix[16];
    io.getMatrix(e, matrix);
    d.setModelRotationMatrix(matrix);
    if (CZelXMLIO::find(e, "Comment")) AddTexts(d.comment(), io.getLanguages(e, "Comment"));
    if (CZelXMLIO::find(e, "Description1")) AddTexts(d.description1(), io.getLanguages(e, "Description1"));
    if (CZelXMLIO::find(e, "Description2")) AddTexts(d.description2(), io.getLanguages(e, "Description2"));
    ZelGetProperties(io, e, d.properties());
    io.getList(e, "Setups", "Setup", d.setups(), [&](const XIXMLElement* x, CObjectSetup& s) {
        s.setUUID(io.getUUID(x, "UUID"));
        AddTexts(s.name(), io.getLanguages(x, "Name"));
    });
    d.setLightGroupId(io.getUUID(e, "LightGroupID"));
    d.setClass(CZelXMLIO::attributeText(cls, "en"));
}

void ZelGetObjectDefinitionWithUUID(const CZelXMLIO& io, const XIXMLElement* e, CZelZelObjectDefinition& d) {
    ZelGetObjectDefinition(io, e, d);
    CZelUUID id;
    if (io.findUUID(e, "UUID", id)) d.setUUID(id);
}

XIXMLElement* ZelAddInternalComponent(const CZelXMLIO& io, XIXMLElement* parent, CZelZelObjectDefinition& d) {
    XIXMLElement* e = CZelXMLIO::add(parent, "InternalComponentDefinition");
    io.putUUID(e, "UUID", *d.getUUID());
    io.putInt(e, "Geometry.Level", d.getGeometryLevel());
    ZelAttachProvider(CZelXMLIO::add(e, "Points"), new CPointsProvider(io.mZel));
    ZelAttachProvider(CZelXMLIO::add(e, "Polygons"), new CPolygonsProvider(io.mZel));
    ZelAddObjectDefinition(io, e, d);
    return e;
}

void ZelGetInternalComponent(const CZelXMLIO& io, const XIXMLElement* e, CZelZelObjectDefinition& d) {
    d.setUUID(io.getUUID(e, "UUID"));
    int level;
    if (io.findInt(e, "Geometry.Level", level)) d.setGeometryLevel(level);
    ZelGetObjectDefinition(io, CZelXMLIO::need(e, "Object.Definition"), d);
}

// ---- Instances

XIXMLElement* ZelAddObjectInstance(const CZelXMLIO& io, XIXMLElement* parent, CZelObjectInstance& x) {
    x.updateInstanceData();
    XIXMLElement* e = CZelXMLIO::add(parent, "Object.Instance");
    io.putEnString(e, "Name", x.getName());
    io.putEnString(e, "Class", x.getClass());
    io.putUUID(e, "Id", *x.getId());
    io.putUUID(e, "Attach.Id", *x.getAttachId());
    io.putVector(e, "Normal", *x.getNormal());
    io.putVector(e, "Translation", *x.getTranslation());
    io.putVector(e, "Rotation", *x.getRotation());
    io.putVector(e, "Scale", *x.getScale());
    // Files hold the triangle's number as a 32-bit "%d".
    io.putInt(e, "Triangle.Id", static_cast<int>(x.getTriangleId()));
    io.putTriangle(e, "Triangle.Coord", x.getTriangleCoord(), io.mZel->isOldClient());
    io.putVector(e, "Anchor.Position", *x.getAnchorPosition());
    io.putVector(e, "Up.Vector", *x.getUpVector());
    io.putLabel(e, "Placement.Property", kPlacementLabels, x.getPlacementProperty());
    io.putDouble(e, "Initial.Angle", x.getInitialAngle());
    XIXMLElement* box = CZelXMLIO::add(e, "Bounding.Box");
    io.putVector(box, "Min.Point", x.getBoundingBox()[0]);
    io.putVector(box, "Max.Point", x.getBoundingBox()[1]);
    io.putInt(e, "UIValue", x.getUIValue());
    io.putFlag(e, "Coordinates.Locked", x.isCoordinatesLocked());
    io.putFlag(e, "Scale.Locked", x.isScaleLocked());
    io.putVector(e, "Current.Path.Direction", *x.getCurrentPathDirection());
    io.putLabel(e, "Animation.Behavior", kAnimationBehaviorLabels, x.getAnimationBehavior());
    io.putFlag(e, "Target", x.isTarget());
    io.putDouble(e, "Tansparency", x.getTransparency());
    io.putUUID(e, "Layer.Id", *x.getLayerId());
    x.instanceData()->AsNode()->CopyTo(e);
    return e;
}

void ZelGetObjectInstance(const CZelXMLIO& io, const XIXMLElement* e, CZelObjectInstance& x) {
    ZelCopyDataElement(x.instanceData(), CZelXMLIO::need(e, "Instance.Data"));
    x.setName(io.getEnString(e, "Name").c_str());
    x.setId(io.getUUID(e, "Id"));
    x.setAttachId(io.getUUID(e, "Attach.Id"));
    x.setNormal(io.getVector(e, "Normal"));
    x.setTranslation(io.getVector(e, "Translation"));
    x.setRotation(io.getVector(e, "Rotation"));
    x.setScale(io.getVector(e, "Scale"));
    x.setTriangleId(io.getInt(e, "Triangle.Id"));
    CZelVector triangle[3];
    io.getTriangle(e, "Triangle.Coord", triangle);
    x.setTriangleCoord(triangle[0], triangle[1], triangle[2]);
    x.setAnchorPosition(io.getVector(e, "Anchor.Position"));
    x.setUpVector(io.getVector(e, "Up.Vector"));
    x.setPlacementProperty(io.getLabel(e, "Placement.Property", kPlacementLabels));
    x.setInitialAngle(io.getDouble(e, "Initial.Angle"));
    const XIXMLElement* box = CZelXMLIO::need(e, "Bounding.Box");
    x.setBoundingBox(io.getVector(box, "Min.Point"), io.getVector(box, "Max.Point"));
    x.setUIValue(io.getInt(e, "UIValue"));
    x.setCoordinatesLocked(io.getFlag(e, "Coordinates.Locked"));
    x.setScaleLocked(io.getFlag(e, "Scale.Locked"));
    x.setCurrentPathDirection(io.getVector(e, "Current.Path.Direction"));
    x.setAnimationBehavior(io.getLabel(e, "Animation.Behavior", kAnimationBehaviorLabels));
    x.setTarget(io.getFlag(e, "Target"));
    // Older files have none: such an instance is opaque.
    double transparency = 0.0;
    io.findDouble(e, "Tansparency", transparency);
    x.setTransparency(transparency);
    x.setLayerId(io.getUUID(e, "Layer.Id"));
    x.setClass(io.getEnString(e, "Class").c_str());
}

// ---- The scene

// Every definition of the list stands in an InternalComponentDefinition, whatever its
// class, so that the list reads back whole.
XIXMLElement* ZelPutObjectDefinitions(const CZelXMLIO& io, XIXMLElement* fileNode,
                                      CObjectDefinitionList& list) {
    return io.putList(
        fileNode, "InternalComponentDefinitions", "InternalComponentDefinition", list,
        [&](XIXMLElement* outer, CZelZelObjectDefinition& d) { ZelAddInternalComponent(io, outer, d); });
}

bool ZelGetObjectDefinitions(const CZelXMLIO& io, const XIXMLElement* fileNode, CObjectDefinitionList& list) {
    return io.getList(
        fileNode, "InternalComponentDefinitions", "InternalComponentDefinition", list,
        [&](const XIXMLElement* e, CZelZelObjectDefinition& d) { ZelGetInternalComponent(io, e, d); });
}

XIXMLElement* ZelPutObjectDefinition(const CZelXMLIO& io, XIXMLElement* fileNode,
                                     CZelZelObjectDefinition& d) {
    return ZelAddObjectDefinition(io, fileNode, d);
}

bool ZelGetSceneObjectDefinition(const CZelXMLIO& io, const XIXMLElement* fileNode,
                                 CZelZelObjectDefinition& d) {
    const XIXMLElement* e = CZelXMLIO::find(fileNode, "Object.Definition");
    if (!e) return false;
    ZelGetObjectDefinitionWithUUID(io, e, d);
    return true;
}

XIXMLElement* ZelPutObjectInstances(const CZelXMLIO& io, XIXMLElement* fileNode, CObjectInstanceList& list) {
    return io.putList(
        fileNode, "Object.Instances", "Object.Instance", list,
        [&](XIXMLElement* outer, CZelObjectInstance& x) { ZelAddObjectInstance(io, outer, x); });
}

bool ZelGetObjectInstances(const CZelXMLIO& io, const XIXMLElement* fileNode, CObjectInstanceList& list) {
    return io.getList(fileNode, "Object.Instances", "Object.Instance", list,
                      [&](const XIXMLElement* e, CZelObjectInstance& x) { ZelGetObjectInstance(io, e, x); });
}

// ---- Delegates

void ZelPutComponentInstanceData(const CZelXMLIO& io, XIXMLElement* data, CZelInternalComponentInstance& d) {
    CZelDataWriter w(io, data);
    w.uuid("Component.UUID", *d.getComponentUUID());
    if (d.properties().getCount())
        ZelPutProperties(io, data, d.properties());
    else
        w.remove("Properties");
}

void ZelGetComponentInstanceData(const CZelXMLIO& io, const XIXMLElement* data,
                                 CZelInternalComponentInstance& d) {
    CZelUUID id;
    if (io.findUUID(data, "Component.UUID", id)) d.setComponentUUID(id);
    ZelGetProperties(io, data, d.properties());
}

void ZelPutZelObjectInstanceData(const CZelXMLIO& io, XIXMLElement* data, CZelZelObjectInstance& d) {
    CZelDataWriter w(io, data);
    w.uuid("Current.Overload", *d.getCurrentOverload());
    if (d.properties().getCount())
        ZelPutProperties(io, data, d.properties());
    else
        w.remove("Properties");
    if (d.lights().getCount())
        ZelPutLights(io, data, d.lights());
    else
        w.remove("Lights");
}

void ZelGetZelObjectInstanceData(const CZelXMLIO& io, const XIXMLElement* data, CZelZelObjectInstance& d) {
    CZelUUID id;
    if (io.findUUID(data, "Current.Overload", id)) d.setCurrentOverload(id);
    ZelGetProperties(io, data, d.properties());
    ZelGetLights(io, data, d.lights());
}

void ZelPutPlantData(const CZelXMLIO& io, XIXMLElement* data, const C3DPlant& plant) {
    CZelDataWriter w(io, data);
    w.label("Plant.Type", kPlantTypeLabels, plant.getPlantType());
    XIXMLElement* setups = w.child("Plant.Setups");
    for (unsigned int i = 0; i < plant.setups().getCount(); ++i) {
        const CPlantSetUp& s = *plant.setups().at(i);
        XIXMLElement* x = CZelXMLIO::add(setups, "Plant.Setup");
        io.putDate(x, "StartTime", s.start().toDate());
        io.putDate(x, "EndTime", s.end().toDate());
        io.putLabel(x, "Color", kPlantColorLabels, s.getColor());
        io.putUUID(x, "Id", *s.getId());
    }
}

void ZelGetPlantData(const CZelXMLIO& io, const XIXMLElement* data, C3DPlant& plant) {
    plant.setups().clear();
    plant.setPlantType(io.getLabel(data, "Plant.Type", kPlantTypeLabels));
    io.getList(data, "Plant.Setups", "Plant.Setup", plant.setups(),
               [&](const XIXMLElement* x, CPlantSetUp& s) {
                   CZelDate date = s.start().toDate();
                   io.getDate(x, "StartTime", date);
                   s.start().setDate(date);
                   date = s.end().toDate();
                   io.getDate(x, "EndTime", date);
                   s.end().setDate(date);
                   s.setColor(io.getLabel(x, "Color", kPlantColorLabels));
                   s.setId(io.getUUID(x, "Id"));
               });
}

void ZelPutPlantRefData(const CZelXMLIO& io, XIXMLElement* data, const C3DPlantRef& plant) {
    CZelDataWriter w(io, data);
    w.flag("Heliodon.Attached", plant.isHeliodonAttached());
    w.date("Time", plant.time().toDate());
    w.label("Color", kPlantColorLabels, plant.getColor());
}

void ZelGetPlantRefData(const CZelXMLIO& io, const XIXMLElement* data, C3DPlantRef& plant) {
    if (!CZelXMLIO::find(data, "Time")) return;
    CZelDate date = plant.time().toDate();
    io.getDate(data, "Time", date);
    plant.time().setDate(date);
    plant.setHeliodonAttached(io.getFlag(data, "Heliodon.Attached"));
    plant.setColor(io.getLabel(data, "Color", kPlantColorLabels));
}

void ZelPutAnimatedObjectData(const CZelXMLIO& io, XIXMLElement* data, const CZelAnimatedObject& object) {
    CZelDataWriter w(io, data);
    w.label("External.File.Type", kExternalFileTypeLabels, object.getExternalFileType());
    w.integer("Index", object.getIndex());
    XIXMLElement* takes = w.child("Takes");
    for (unsigned int i = 0; i < object.takes().getCount(); ++i) {
        const CZelTake& t = *object.takes().at(i);
        XIXMLElement* x = CZelXMLIO::add(takes, "Take");
        io.putInt(x, "Duration", t.getDuration());
        io.putInt(x, "FPS", t.getFPS());
        io.putLanguages(x, "Name", t.name().getTexts());
        io.putDouble(x, "Z.Min", t.getZMin());
        io.putLabel(x, "Type", kAnimatedPathTypeLabels, t.getType());
        io.putDouble(x, "Z.Angle", t.getZAngle());
    }
}

void ZelGetAnimatedObjectData(const CZelXMLIO& io, const XIXMLElement* data, CZelAnimatedObject& object) {
    object.setExternalFileType(io.getLabel(data, "External.File.Type", kExternalFileTypeLabels));
    object.setIndex(io.getInt(data, "Index"));
    io.getList(data, "Takes", "Take", object.takes(), [&](const XIXMLElement* x, CZelTake& t) {
        t.setDuration(io.getInt(x, "Duration"));
        t.setFPS(io.getInt(x, "FPS"));
        t.name().setTexts(io.getLanguages(x, "Name"));
        t.setZMin(io.getDouble(x, "Z.Min"));
        t.setType(io.getLabel(x, "Type", kAnimatedPathTypeLabels));
        t.setZAngle(io.getDouble(x, "Z.Angle"));
    });
}

void ZelPutAnimatedInstanceData(const CZelXMLIO& io, XIXMLElement* data, CZelAnimatedObjectInstance& x) {
    CZelDataWriter w(io, data);
    w.integer("Current.Frame", x.getCurrentFrame());
    w.integer("Current.Take", x.getCurrentTake());
    w.integer("Real.Duration", x.getRealDuration());
    w.integer("Start.Frame", x.getStartFrame());
    if (!x.overloaded().getCount()) {
        w.remove("Overloaded.Properties");
        return;
    }
    XIXMLElement* list = w.child("Overloaded.Properties");
    for (unsigned int i = 0; i < x.overloaded().getCount(); ++i)
        ZelAddProperty(io, list, *x.overloaded().at(i));
}

void ZelGetAnimatedInstanceData(const CZelXMLIO& io, const XIXMLElement* data,
                                CZelAnimatedObjectInstance& x) {
    x.setCurrentFrame(io.getInt(data, "Current.Frame"));
    x.setCurrentTake(io.getInt(data, "Current.Take"));
    x.setRealDuration(io.getInt(data, "Real.Duration"));
    x.setStartFrame(io.getInt(data, "Start.Frame"));
    if (const XIXMLElement* list = CZelXMLIO::find(data, "Overloaded.Properties"))
        io.getItems(list, "Property", x.overloaded(),
                    [&](const XIXMLElement* e, CProperty& p) { ZelGetProperty(io, e, p); });
}

void ZelPutLightData(const CZelXMLIO& io, XIXMLElement* data, const CLight& light) {
    CZelDataWriter w(io, data);
    w.remove("Light");
    ZelAddLight(io, data, light);
}

void ZelGetLightData(const CZelXMLIO& io, const XIXMLElement* data, CLight& light) {
    if (const XIXMLElement* e = CZelXMLIO::find(data, "Light")) ZelGetLight(io, e, light);
}

} // namespace KeZel
