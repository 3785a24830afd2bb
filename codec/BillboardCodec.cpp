#include "codec/BillboardCodec.h"

#include "codec/ObjectCodec.h"
#include "foundation/Errors.h"
#include "frame/CZEL.h"

#include <cstdio>

namespace KeZel {

using KestraXML::XIXMLAttribute;
using KestraXML::XIXMLElement;

namespace {

// The texture of an entry, in the order of its keys.
void AddTexture(const CZelXMLIO& io, XIXMLElement* parent, const CZelTexture& t) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Texture");
    io.putString(e, "URL", t.getURL());
    io.putVector(e, "Origin", *t.getOrigin());
    io.putVector(e, "X.Axis", *t.getXAxis());
    io.putVector(e, "Y.Axis", *t.getYAxis());
    io.putDouble(e, "Width", t.getWidth());
    io.putDouble(e, "Height", t.getHeight());
    CZelColor c;
    if (t.getCutOut1(&c)) io.putColor(e, "CutOut1", c);
    if (t.getCutOut2(&c)) io.putColor(e, "CutOut2", c);
    io.putFlag(e, "CutSet", t.isCutSet());
}

void GetTexture(const CZelXMLIO& io, const XIXMLElement* e, CZelTexture& t) {
    t.setURL(io.getString(e, "URL").c_str());
    t.setOrigin(io.getVector(e, "Origin"));
    t.setXAxis(io.getVector(e, "X.Axis"));
    t.setYAxis(io.getVector(e, "Y.Axis"));
    t.setWidth(io.getDouble(e, "Width"));
    t.setHeight(io.getDouble(e, "Height"));
    // An unused cut-out keeps its colour.
    CZelColor c;
    t.getCutOut1(&c);
    bool used = io.findColor(e, "CutOut1", c);
    t.setCutOut1(used, c);
    t.getCutOut2(&c);
    used = io.findColor(e, "CutOut2", c);
    t.setCutOut2(used, c);
    t.setCutSet(io.getFlag(e, "CutSet"));
}

void AddBillboardInfo(const CZelXMLIO& io, XIXMLElement* parent, const CZelBillboard& b) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Bb.Info");
    if (b.names().getCount()) {
        CZelLanguageTexts names;
        for (unsigned int i = 0; i < b.names().getCount(); ++i)
            names.emplace_back(b.names().at(i)->getCode(), b.names().at(i)->getText());
        io.putLanguages(e, "Names", names);
    }
    io.putLabel(CZelXMLIO::add(e, "Behavior"), "Kind", kBillboardKindLabels, b.getBehavior());
    io.putInt(e, "NbFaces", b.getNbFaces());
    io.putFlag(e, "Animate", b.isAnimate());
    io.putDouble(e, "Scale", b.getScale());
    io.putVector(e, "Normal", *b.getNormal());
}

void GetBillboardInfo(const CZelXMLIO& io, const XIXMLElement* e, CZelBillboard& b) {
    if (CZelXMLIO::find(e, "Names")) {
        b.names().clear();
        for (const auto& name : io.getLanguages(e, "Names")) {
            CZelBBName* n = b.names().newItem();
            Kestra::XAssertPointer(n);
            n->setCode(name.first);
            n->setText(name.second.c_str());
        }
    }
    b.setBehavior(io.getLabel(CZelXMLIO::need(e, "Behavior"), "Kind", kBillboardKindLabels));
    b.setNbFaces(io.getInt(e, "NbFaces"));
    b.setAnimate(io.getFlag(e, "Animate"));
    b.setScale(io.getDouble(e, "Scale"));
    b.setNormal(io.getVector(e, "Normal"));
}

} // namespace

XIXMLElement* ZelAddBillboard(const CZelXMLIO& io, XIXMLElement* parent, const CZelBBMgrData* entry) {
    Kestra::XAssertPointer(parent);
    if (!entry) return nullptr;
    XIXMLElement* e = CZelXMLIO::add(parent, "Billboard");
    XIXMLElement* mgr = CZelXMLIO::add(e, "Mgr.Info");
    io.putHex(mgr, "Property", entry->getProperty());
    XIXMLElement* quads = CZelXMLIO::add(mgr, "Quads");
    for (unsigned int i = 0; i < entry->quads().getCount(); ++i) {
        const CZelQuad& quad = *entry->quads().at(i);
        // The quad's own text is its identity, "%08X" of the low 32 bits.
        char id[16];
        std::snprintf(id, sizeof id, "%08X", static_cast<unsigned int>(quad.getId()));
        XIXMLElement* q = CZelXMLIO::add(quads, "Quad");
        q->NewData(id);
        io.putTriangle(q, "Triangle", quad.getTriangle(), io.mZel->isOldClient());
    }
    AddTexture(io, e, entry->texture());
    if (entry->hasBillboard()) AddBillboardInfo(io, e, entry->billboard());
    return e;
}

void ZelGetBillboard(const CZelXMLIO& io, const XIXMLElement* e, CZelBBMgrData& entry) {
    const XIXMLElement* mgr = CZelXMLIO::need(e, "Mgr.Info");
    entry.setProperty(io.getHex(mgr, "Property"));
    io.getList(mgr, "Quads", "Quad", entry.quads(), [&](const XIXMLElement* q, CZelQuad& quad) {
        const char* text = CZelXMLIO::textOf(q);
        unsigned int id = 0;
        Kestra::XAssertPointer(text);
        Kestra::XRequire(std::sscanf(text, "%08X", &id) == 1);
        quad.setId(static_cast<int>(id));
        CZelVector t[3];
        io.getTriangle(q, "Triangle", t);
        quad.setTriangle(t[0], t[1], t[2]);
    });
    GetTexture(io, CZelXMLIO::need(e, "Texture"), entry.texture());
    if (const XIXMLElement* info = CZelXMLIO::find(e, "Bb.Info"))
        GetBillboardInfo(io, info, entry.billboard());
}

XIXMLElement* ZelPutBillboards(const CZelXMLIO& io, XIXMLElement* fileNode, CBillboardList& list) {
    return io.putList(fileNode, "Billboards", "Billboard", list,
                      [&](XIXMLElement* outer, const CZelBBMgrData& b) { ZelAddBillboard(io, outer, &b); });
}

bool ZelGetBillboards(const CZelXMLIO& io, const XIXMLElement* fileNode, CBillboardList& list) {
    return io.getList(fileNode, "Billboards", "Billboard", list,
                      [&](const XIXMLElement* e, CZelBBMgrData& b) { ZelGetBillboard(io, e, b); });
}

void ZelPutBBInstanceData(const CZelXMLIO& io, XIXMLElement* data, const CZelBBObjectInstance& bb) {
    CZelDataWriter w(io, data);
    w.flag("Orient.With.Camera", bb.isOrientWithCamera());
    w.flag("Vertical.Flip", bb.isVerticalFlip());
    w.flag("Horizontal.Flip", bb.isHorizontalFlip());
    w.label("Render.Type", kBillboardRenderTypeLabels, bb.getRenderType());
    w.real("Shininess", bb.getShininess());
    w.real("Roughness", bb.getRoughness());
    w.real("Brightness", bb.getBrightness());
    w.real("Contrast", bb.getContrast());
    w.label("Kind", kBillboardInstanceKindLabels, bb.getKind());
    w.real("Definition.Size", bb.getDefinitionSize());
    w.languages("Definition.Name", bb.definitionName().getTexts());
    w.integer("Current.Config", bb.getCurrentConfig());
}

void ZelGetBBInstanceData(const CZelXMLIO& io, const XIXMLElement* data, CZelBBObjectInstance& bb) {
    bb.setRenderType(io.getLabel(data, "Render.Type", kBillboardRenderTypeLabels));
    bb.setOrientWithCamera(io.getFlag(data, "Orient.With.Camera"));
    bb.setVerticalFlip(io.getFlag(data, "Vertical.Flip"));
    bb.setHorizontalFlip(io.getFlag(data, "Horizontal.Flip"));
    bb.setShininess(io.getDouble(data, "Shininess"));
    bb.setBrightness(io.getDouble(data, "Brightness"));
    bb.setRoughness(io.getDouble(data, "Roughness"));
    bb.setContrast(io.getDouble(data, "Contrast"));
    bb.setKind(io.getLabel(data, "Kind", kBillboardInstanceKindLabels));
    bb.setDefinitionSize(io.getDouble(data, "Definition.Size"));
    bb.definitionName().setTexts(io.getLanguages(data, "Definition.Name"));
    bb.setCurrentConfig(io.getInt(data, "Current.Config"));
}

} // namespace KeZel
