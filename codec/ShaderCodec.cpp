// The element form of shader nodes: the generic walk, then the fields of each kind.
#include "codec/ShaderCodec.h"

#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "model/geometry/MappingNode.h"
#include "model/geometry/ProceduralNodes.h"

#include <climits>
#include <cstdio>
#include <cstring>
#include <vector>

namespace KeZel {

using namespace Kestra;
using KestraXML::XIXMLElement;

namespace {

enum EChildForm { eNoChildren, eFirstChild, eTwoChildren, eChildList };

EChildForm ChildFormOf(int kind) {
    switch (kind) {
    case eChessNode:
        return eTwoChildren;
    case eMappingNode:
    case eTurbulenceNode:
    case eFresnelNode:
    case eGlazingNode:
        return eFirstChild;
    case eCustomNode:
        return eChildList;
    default:
        return eNoChildren;
    }
}

template <class C> const C& As(const ITCENode& node) {
    const C* c = dynamic_cast<const C*>(&node);
    XAssertPointer(c, "ShaderCodec - node of kind %d is not ours", node.getKind());
    return *c;
}

template <class C> C& As(ITCENode& node) {
    return const_cast<C&>(As<C>(static_cast<const ITCENode&>(node)));
}

void PutFields(const CZelXMLIO& io, XIXMLElement* e, const ITCENode& node) {
    switch (node.getKind()) {
    case eChessNode:
        return ZelPutNodeFields(io, e, As<CChessNode>(node));
    case eMappingNode:
        return ZelPutNodeFields(io, e, As<CMappingNode>(node));
    case eTurbulenceNode:
        return ZelPutNodeFields(io, e, As<CTurbulenceNode>(node));
    case eLeafNode:
        return ZelPutNodeFields(io, e, As<CLeafNode>(node));
    case eFresnelNode:
        return ZelPutNodeFields(io, e, As<CFresnelNode>(node));
    case eGlazingNode:
        return ZelPutNodeFields(io, e, As<CGlazingNode>(node));
    case eCustomNode:
        return ZelPutNodeFields(io, e, As<CCustomNode>(node));
    default:
        return; // any other kind stands bare
    }
}

void GetFields(const CZelXMLIO& io, const XIXMLElement* e, ITCENode& node, const CZelNodeReading& reading) {
    switch (node.getKind()) {
    case eChessNode:
        return ZelGetNodeFields(io, e, As<CChessNode>(node), reading);
    case eMappingNode:
        return ZelGetNodeFields(io, e, As<CMappingNode>(node), reading);
    case eTurbulenceNode:
        return ZelGetNodeFields(io, e, As<CTurbulenceNode>(node), reading);
    case eLeafNode:
        return ZelGetNodeFields(io, e, As<CLeafNode>(node), reading);
    case eFresnelNode:
        return ZelGetNodeFields(io, e, As<CFresnelNode>(node), reading);
    case eGlazingNode:
        return ZelGetNodeFields(io, e, As<CGlazingNode>(node), reading);
    case eCustomNode:
        return ZelGetNodeFields(io, e, As<CCustomNode>(node), reading);
    default:
        return;
    }
}

// Reading recurses once per level; a file cannot take it deeper than this.
const int kMaxNodeDepth = 2000;

CNodeRef GetNode(const CZelXMLIO& io, const XIXMLElement* element, const CZelNodeReading& reading, int depth);

// Reads the child element `name` of `e`, if there is one, and appends what it gives.
void GetChild(const CZelXMLIO& io, const XIXMLElement* e, const char* name, ITCENode& node,
              const CZelNodeReading& reading, int depth) {
    if (const XIXMLElement* c = CZelXMLIO::find(e, name)) {
        CNodeRef child = GetNode(io, c, reading, depth);
        node.addChild(child.get());
    }
}

CNodeRef GetNode(const CZelXMLIO& io, const XIXMLElement* element, const CZelNodeReading& reading,
                 int depth) {
    XAssert(depth < kMaxNodeDepth, "CZelXMLIO::GetNode - tree deeper than %d", kMaxNodeDepth);
    int kind = io.getLabel(element, "Type", kShaderNodeTypeLabels);
    if (kind == eRootNode) return CNodeRef();
    CNodeRef node = ZelNewNode(kind, reading.mTree);
    GetFields(io, element, *node, reading);
    switch (ChildFormOf(kind)) {
    case eFirstChild:
        GetChild(io, element, "Node", *node, reading, depth + 1);
        break;
    case eTwoChildren:
        GetChild(io, element, "Node", *node, reading, depth + 1);
        GetChild(io, element, "SecondNode", *node, reading, depth + 1);
        break;
    case eChildList:
        if (XIXMLElement* childs = CZelXMLIO::find(element, "Childs")) {
            for (XIXMLElement* c = CZelXMLIO::find(childs, "Node"); c; c = c->FindNextElement()) {
                CNodeRef child = GetNode(io, c, reading, depth + 1);
                node->addChild(child.get());
            }
        }
        break;
    case eNoChildren:
        break;
    }
    ZelGetNodeHead(io, element, *node);
    return node;
}

} // namespace

// ---- The walk

XIXMLElement* ZelAddNode(const CZelXMLIO& io, XIXMLElement* parent, const char* name, const ITCENode* node) {
    XAssertPointer(node, "CZelXMLIO::AddNode - node is NULL");
    XIXMLElement* e = CZelXMLIO::add(parent, name);
    ZelPutNodeHead(io, e, *node);
    PutFields(io, e, *node);
    switch (ChildFormOf(node->getKind())) {
    case eFirstChild:
        ZelAddNode(io, e, "Node", node->getChild(0));
        break;
    case eTwoChildren:
        ZelAddNode(io, e, "Node", node->getChild(0));
        ZelAddNode(io, e, "SecondNode", node->getChild(1));
        break;
    case eChildList:
        if (node->getChildCount() > 0) {
            XIXMLElement* childs = CZelXMLIO::add(e, "Childs");
            for (int i = 0; i < node->getChildCount(); ++i) ZelAddNode(io, childs, "Node", node->getChild(i));
        }
        break;
    case eNoChildren:
        break;
    }
    return e;
}

CNodeRef ZelGetNode(const CZelXMLIO& io, const XIXMLElement* element, const CZelNodeReading& reading) {
    return GetNode(io, element, reading, 0);
}

void ZelPutNodeHead(const CZelXMLIO& io, XIXMLElement* e, const ITCENode& node) {
    if (!node.getId()->isNull()) io.putUUID(e, "Id", *node.getId());
    if (node.getUIValue() != 0) io.putInt(e, "UI.Value", node.getUIValue());
    int kind = node.getKind();
    if (kind >= eChessNode && kind <= eCustomNode) io.putLabel(e, "Type", kShaderNodeTypeLabels, kind);
}

void ZelGetNodeHead(const CZelXMLIO& io, const XIXMLElement* e, ITCENode& node) {
    CZelUUID id;
    if (io.findUUID(e, "Id", id)) node.setId(id);
    int value = 0;
    if (io.findInt(e, "UI.Value", value)) node.setUIValue(value);
}

// ---- Tables

void ZelPutTable(const CZelXMLIO& io, XIXMLElement* e, const char* key, const ITable& table) {
    std::vector<float> values(static_cast<size_t>(table.getLength() > 0 ? table.getLength() : 0));
    for (size_t i = 0; i < values.size(); ++i) values[i] = table.getValue(static_cast<int>(i));
    io.putFloats(e, key, values.data(), static_cast<long>(values.size()));
}

void ZelGetTable(const CZelXMLIO&, const XIXMLElement* e, const char* key, ITable& table) {
    const XIXMLElement* t = CZelXMLIO::need(e, key);
    long length = 0;
    XRequire(std::sscanf(CZelXMLIO::attributeText(t, "Length"), "%ld", &length) == 1);
    XAssert(length >= 0 && length <= INT_MAX);
    table.setLength(static_cast<int>(length));
    int index = 0;
    for (XIXMLElement* f = CZelXMLIO::find(t, "Float"); f; f = f->FindNextElement(), ++index) {
        const char* text = CZelXMLIO::textOf(f);
        XAssertPointer(text);
        double value = 0;
        XRequire(std::sscanf(text, "%lf", &value) == 1);
        table.setValue(index, static_cast<float>(value));
    }
}

// ---- Chess

void ZelPutNodeFields(const CZelXMLIO& io, XIXMLElement* e, const CChessNode& n) {
    // An old client keeps Y and Z apart the other way round: the elements trade axes.
    bool old = io.mZel->isOldClient();
    io.putVector(e, "Origin", *n.getOrigin());
    io.putVector(e, "X.Axis", *n.getXAxis());
    io.putVector(e, "Y.Axis", old ? *n.getZAxis() : *n.getYAxis());
    io.putVector(e, "Z.Axis", old ? *n.getYAxis() : *n.getZAxis());
    io.putVector(e, "Size", *n.getSize());
    io.putVector(e, "Proportion", *n.getProportion());
    io.putFlag(e, "Checker", n.isChecker());
    io.putFlag(e, "Smooth", n.isSmooth());
    io.putLabel(e, "Geometry", kProceduralGeometryLabels, n.getGeometry());
    ZelPutTable(io, e, "Table1", *n.getTable1());
    ZelPutTable(io, e, "Table2", *n.getTable2());
    ZelPutTable(io, e, "Table3", *n.getTable3());
}

void ZelGetNodeFields(const CZelXMLIO& io, const XIXMLElement* e, CChessNode& n, const CZelNodeReading&) {
    bool old = io.mZel->isOldClient();
    n.setOrigin(io.getVector(e, "Origin"));
    n.setXAxis(io.getVector(e, "X.Axis"));
    n.setYAxis(io.getVector(e, old ? "Z.Axis" : "Y.Axis"));
    n.setZAxis(io.getVector(e, old ? "Y.Axis" : "Z.Axis"));
    n.setSize(io.getVector(e, "Size"));
    n.setProportion(io.getVector(e, "Proportion"));
    n.setChecker(io.getFlag(e, "Checker"));
    n.setSmooth(io.getFlag(e, "Smooth"));
    n.setGeometry(io.getLabel(e, "Geometry", kProceduralGeometryLabels));
    ZelGetTable(io, e, "Table1", *n.getTable1());
    ZelGetTable(io, e, "Table2", *n.getTable2());
    ZelGetTable(io, e, "Table3", *n.getTable3());
}

// ---- Mapping

void ZelPutNodeFields(const CZelXMLIO& io, XIXMLElement* e, const CMappingNode& n) {
    XIXMLElement* maps = CZelXMLIO::add(e, "Maps");
    for (int kind = eDiffuseMap; kind <= eMovieMap; ++kind) {
        const char* url = n.getURL(kind);
        if (!*url) continue;
        io.putString(maps, "URL", url);
        // The URL just written is the last child of Maps.
        XIXMLElement* last = CZelXMLIO::find(maps, "URL");
        while (XIXMLElement* next = last->FindNextElement()) last = next;
        io.putLabel(last, "Type", kMapTypeLabels, kind);
    }
    io.putFlag(e, "Shader", n.isShader());
    if (n.getMapLinkedCount() > 0) {
        XIXMLElement* linked = CZelXMLIO::add(e, "Maps.Linked");
        for (unsigned int i = 0; i < n.getMapLinkedCount(); ++i)
            io.putUUID(CZelXMLIO::add(linked, "Map.Node"), "Id", n.getMapLinked(i));
    }
    io.putVector(e, "Normal", *n.getNormal());
    io.putVector(e, "Origin", *n.getOrigin());
    io.putVector(e, "X.Axis", *n.getXAxis());
    io.putVector(e, "Y.Axis", *n.getYAxis());
    io.putDouble(e, "Angle", n.getAngle());
    io.putDouble(e, "Width", n.getWidth());
    io.putDouble(e, "Height", n.getHeight());
    io.putDouble(e, "Bump", n.getBump());
    io.putDouble(e, "X.Center", n.getXCenter());
    io.putDouble(e, "Y.Center", n.getYCenter());
    io.putDouble(e, "X.Delta", n.getXDelta());
    io.putDouble(e, "Y.Delta", n.getYDelta());
    io.putDouble(e, "Glossy", n.getGlossy());
    io.putFlag(e, "X.Repeat", n.isXRepeat());
    io.putFlag(e, "Y.Repeat", n.isYRepeat());
    io.putColor(e, "Specular", n.getSpecular());
    io.putColor(e, "Transparent", n.getTransparent());
    io.putColor(e, "Reflection", n.getReflection());
    io.putDouble(e, "Reflection.Limit", n.getReflectionLimit());
    if (n.isUseCutOut1()) io.putColor(e, "CutOut1", n.getCutOut1());
    if (n.isUseCutOut2()) io.putColor(e, "CutOut2", n.getCutOut2());
    io.putFlag(e, "CutSet", n.isCutSet());
    io.putFlag(e, "CutAlpha", n.isCutAlpha());
    io.putFlag(e, "X.Invert", n.isXInvert());
    io.putFlag(e, "Y.Invert", n.isYInvert());
    io.putFlag(e, "X.Mirror", n.isXMirror());
    io.putFlag(e, "Y.Mirror", n.isYMirror());
    io.putFlag(e, "Alpha.Bump", n.isAlphaBump());
    io.putFlag(e, "Alpha.Transparency", n.isAlphaTransparency());
    io.putLabel(e, "Projection", kProjectionLabels, n.getProjection());
    io.putFlag(e, "Planar", n.isPlanar());
    io.putFlag(e, "Visible", n.isVisible());
    io.putFlag(e, "Mix", n.isMix());
    io.putColor(e, "Mix.Color", n.getMixColor());
    io.putDouble(e, "Mix.Value", n.getMixValue());
    io.putDouble(e, "Angular.LOD.Shift", n.getAngularLODShift());
    io.putDouble(e, "Linear.LOD.Shift", n.getLinearLODShift());
    io.putFlag(e, "MIPMAP", n.isMIPMAP());
    io.putFlag(e, "Trilinear.Filter", n.isTrilinearFilter());
    io.putFlag(e, "Display.Mode", n.isDisplayMode());
    io.putDouble(e, "Brightness", n.getBrightness());
    io.putDouble(e, "Contrast", n.getContrast());
    io.putInt(e, "Frame", n.getFrame());
    io.putInt(e, "Movie.Length", n.getMovieLength());
    io.putDouble(e, "Normal.Map", n.getNormalMap());
    io.putUUID(e, "MappingNode.Id", *n.getMappingNodeId());
    io.putUUID(e, "MappingNode.Parent.Id", *n.getMappingNodeParentId());
}

void ZelGetNodeFields(const CZelXMLIO& io, const XIXMLElement* e, CMappingNode& n,
                      const CZelNodeReading& reading) {
    KestraXML::XIXMLAttribute* type = CZelXMLIO::findAttribute(e, "Type");
    if (!type || std::strcmp(type->GetValue(), ZelLabelOf(kShaderNodeTypeLabels, eMappingNode)) != 0)
        XThrow("CZelXMLIO::GetMappingNode : xml node is not a mapping node");

    if (CZelXMLIO::find(e, "URL")) {
        // The old form: one diffuse map, straight under the node.
        std::string url = io.getString(e, "URL");
        if (!url.empty()) n.setURL(url.c_str(), eDiffuseMap);
    } else {
        XIXMLElement* maps = CZelXMLIO::need(e, "Maps");
        for (XIXMLElement* u = CZelXMLIO::find(maps, "URL"); u; u = u->FindNextElement()) {
            int kind = io.getLabel(u, "Type", kMapTypeLabels);
            const char* text = CZelXMLIO::textOf(u);
            n.setURL(text ? text : "", kind);
        }
    }
    if (XIXMLElement* linked = CZelXMLIO::find(e, "Maps.Linked"))
        for (XIXMLElement* m = CZelXMLIO::find(linked, "Map.Node"); m; m = m->FindNextElement())
            n.addLinkedMap(io.getUUID(m, "Id"));
    n.setShader(io.getFlag(e, "Shader"));
    n.setNormal(io.getVector(e, "Normal"));
    n.setOrigin(io.getVector(e, "Origin"));
    n.setXAxis(io.getVector(e, "X.Axis"));
    n.setYAxis(io.getVector(e, "Y.Axis"));
    n.setAngle(io.getDouble(e, "Angle"));
    n.setWidth(io.getDouble(e, "Width"));
    n.setHeight(io.getDouble(e, "Height"));
    n.setBump(io.getDouble(e, "Bump"));
    n.setXCenter(io.getDouble(e, "X.Center"));
    n.setYCenter(io.getDouble(e, "Y.Center"));
    n.setXDelta(io.getDouble(e, "X.Delta"));
    n.setYDelta(io.getDouble(e, "Y.Delta"));
    n.setGlossy(io.getDouble(e, "Glossy"));
    n.setXRepeat(io.getFlag(e, "X.Repeat"));
    n.setYRepeat(io.getFlag(e, "Y.Repeat"));
    n.setSpecular(io.getColor(e, "Specular"));
    n.setTransparent(io.getColor(e, "Transparent"));
    n.setReflection(io.getColor(e, "Reflection"));
    double value = 0;
    if (io.findDouble(e, "Reflection.Limit", value)) n.setReflectionLimit(value);
    CZelColor color;
    n.setUseCutOut1(io.findColor(e, "CutOut1", color));
    if (n.isUseCutOut1()) n.setCutOut1(color);
    n.setUseCutOut2(io.findColor(e, "CutOut2", color));
    if (n.isUseCutOut2()) n.setCutOut2(color);
    n.setCutSet(io.getFlag(e, "CutSet"));
    n.setCutAlpha(io.getFlag(e, "CutAlpha"));
    n.setXInvert(io.getFlag(e, "X.Invert"));
    n.setYInvert(io.getFlag(e, "Y.Invert"));
    n.setXMirror(io.getFlag(e, "X.Mirror"));
    n.setYMirror(io.getFlag(e, "Y.Mirror"));
    n.setAlphaBump(io.getFlag(e, "Alpha.Bump"));
    n.setAlphaTransparency(io.getFlag(e, "Alpha.Transparency"));
    n.setProjection(io.getLabel(e, "Projection", kProjectionLabels));
    n.setPlanar(io.getFlag(e, "Planar"));
    n.setVisible(io.getFlag(e, "Visible"));
    n.setMix(io.getFlag(e, "Mix"));
    n.setMixColor(io.getColor(e, "Mix.Color"));
    n.setMixValue(io.getDouble(e, "Mix.Value"));
    n.setMIPMAP(io.getFlag(e, "MIPMAP"));
    n.setTrilinearFilter(io.getFlag(e, "Trilinear.Filter"));
    n.setDisplayMode(io.getFlag(e, "Display.Mode"));
    if (io.findDouble(e, "Angular.LOD.Shift", value)) n.setAngularLODShift(value);
    if (io.findDouble(e, "Linear.LOD.Shift", value)) n.setLinearLODShift(value);
    if (io.findDouble(e, "Brightness", value)) n.setBrightness(value);
    if (io.findDouble(e, "Contrast", value)) n.setContrast(value);
    int number = 0;
    if (io.findInt(e, "Frame", number)) n.setFrame(number);
    if (io.findInt(e, "Movie.Length", number)) n.setMovieLength(number);
    if (io.findDouble(e, "Normal.Map", value)) n.setNormalMap(value);

    CZelUUID id;
    if (io.findUUID(e, "MappingNode.Id", id) && !id.isNull()) {
        if (reading.mFullMode)
            n.setMappingNodeId(id);
        else if (reading.mRemap)
            (*reading.mRemap)[id] = *n.getMappingNodeId();
    }
    if (io.findUUID(e, "MappingNode.Parent.Id", id)) {
        if (reading.mFullMode) {
            n.setMappingNodeParentId(id);
        } else if (reading.mRemap) {
            CZelIdRemap::const_iterator it = reading.mRemap->find(id);
            if (it != reading.mRemap->end()) n.setMappingNodeParentId(it->second);
        }
    }
}

// ---- Turbulence

void ZelPutNodeFields(const CZelXMLIO& io, XIXMLElement* e, const CTurbulenceNode& n) {
    io.putVector(e, "Origin", *n.getOrigin());
    io.putVector(e, "Amplitude", *n.getAmplitude());
    io.putVector(e, "Direction", *n.getDirection());
    io.putDouble(e, "Size", n.getSize());
    ZelPutTable(io, e, "Table", *n.getTable());
}

void ZelGetNodeFields(const CZelXMLIO& io, const XIXMLElement* e, CTurbulenceNode& n,
                      const CZelNodeReading&) {
    n.setOrigin(io.getVector(e, "Origin"));
    n.setAmplitude(io.getVector(e, "Amplitude"));
    n.setDirection(io.getVector(e, "Direction"));
    n.setSize(io.getDouble(e, "Size"));
    ZelGetTable(io, e, "Table", *n.getTable());
}

// ---- Leaf

void ZelPutNodeFields(const CZelXMLIO& io, XIXMLElement* e, const CLeafNode& n) {
    io.putColor(e, "Diffuse", n.getDiffuse());
    io.putColor(e, "Transparent", n.getTransparent());
    io.putColor(e, "Specular", n.getSpecular());
    io.putColor(e, "Reflection", n.getReflection());
    io.putColor(e, "Neon.Color", n.getNeonColor());
    io.putDouble(e, "Neon.Value", n.getNeonValue());
    io.putDouble(e, "Refraction", n.getRefraction());
    io.putDouble(e, "Glossy", n.getGlossy());
    io.putColor(e, "Emitting.Color", n.getEmittingColor());
    io.putDouble(e, "Emitting.Power", n.getEmittingPower());
    io.putDouble(e, "Reflection.Limit", n.getReflectionLimit());
}

void ZelGetNodeFields(const CZelXMLIO& io, const XIXMLElement* e, CLeafNode& n, const CZelNodeReading&) {
    n.setDiffuse(io.getColor(e, "Diffuse"));
    n.setTransparent(io.getColor(e, "Transparent"));
    n.setSpecular(io.getColor(e, "Specular"));
    n.setReflection(io.getColor(e, "Reflection"));
    double value = 0;
    if (io.findDouble(e, "Reflection.Limit", value)) n.setReflectionLimit(value);
    n.setNeonColor(io.getColor(e, "Neon.Color"));
    n.setNeonValue(io.getDouble(e, "Neon.Value"));
    n.setRefraction(io.getDouble(e, "Refraction"));
    n.setGlossy(io.getDouble(e, "Glossy"));
    // Older files have no emission: the defaults stay.
    if (CZelXMLIO::find(e, "Emitting.Color")) {
        n.setEmittingColor(io.getColor(e, "Emitting.Color"));
        n.setEmittingPower(io.getDouble(e, "Emitting.Power"));
    }
}

// ---- Fresnel

void ZelPutNodeFields(const CZelXMLIO& io, XIXMLElement* e, const CFresnelNode& n) {
    io.putDouble(e, "Min.Reflection", n.getMinReflection());
    io.putDouble(e, "Power.Factor", n.getPowerFactor());
}

void ZelGetNodeFields(const CZelXMLIO& io, const XIXMLElement* e, CFresnelNode& n, const CZelNodeReading&) {
    n.setMinReflection(io.getDouble(e, "Min.Reflection"));
    n.setPowerFactor(io.getDouble(e, "Power.Factor"));
}

// ---- Glazing

void ZelPutNodeFields(const CZelXMLIO& io, XIXMLElement* e, const CGlazingNode& n) {
    io.putDouble(e, "X.Scale", n.getXScale());
    io.putDouble(e, "Y.Scale", n.getYScale());
    io.putDouble(e, "Flatness", n.getFlatness());
    io.putFlag(e, "Tilt.Detect", n.isTiltDetect());
    io.putDouble(e, "Tilt.Factor", n.getTiltFactor());
    io.putFlag(e, "Animation", n.isAnimation());
    io.putDouble(e, "Speed", n.getSpeed());
}

void ZelGetNodeFields(const CZelXMLIO& io, const XIXMLElement* e, CGlazingNode& n, const CZelNodeReading&) {
    n.setXScale(io.getDouble(e, "X.Scale"));
    n.setYScale(io.getDouble(e, "Y.Scale"));
    n.setFlatness(io.getDouble(e, "Flatness"));
    n.setTiltDetect(io.getFlag(e, "Tilt.Detect"));
    n.setTiltFactor(io.getDouble(e, "Tilt.Factor"));
    n.setAnimation(io.getFlag(e, "Animation"));
    // The speed belongs to the animation: without it, it is not read.
    if (n.isAnimation()) n.setSpeed(io.getDouble(e, "Speed"));
}

// ---- Custom

void ZelPutNodeFields(const CZelXMLIO&, XIXMLElement* e, const CCustomNode& n) {
    const XIXMLElement* data = n.getCustomData();
    XAssertPointer(data, "CZelXMLIO::AddNode - custom node without data");
    data->AsNode()->CopyTo(e);
}

void ZelGetNodeFields(const CZelXMLIO&, const XIXMLElement* e, CCustomNode& n, const CZelNodeReading&) {
    n.initWithXML(CZelXMLIO::find(e, "Custom.Data"));
}

} // namespace KeZel
