// Copying chosen kinds of content of one scene into another. Items are matched by name and
// copied through their own XML form, so that a target item of the same name is
// overwritten, not duplicated, and the readers give the copies identities of their own.
#include "frame/ZelMgr.h"

#include "foundation/Errors.h"
#include "xml/XMLTree.h"
#include "zel.h"

#include <cstring>
#include <map>
#include <string>

namespace KeZel {

namespace {

const char* kClassNames[] = {"ModelObject",    "Billboard", "ZelObject",
                             "AnimatedObject", "3DPlant",   "LightObject"};

// The short-lived context of one import: the two scenes and the identity maps.
struct CImportContext {
    CZelMgr* mTarget;
    CZelMgr* mSource;
    std::map<CZelUUID, CZelUUID> mIdentities; // source identity to target identity
    std::map<std::string, CZelUUID> mDefaultLayers;
};

bool SameName(const char* a, const char* b) {
    return std::strcmp(a ? a : "", b ? b : "") == 0;
}

// Copies `source` into `target` through a free-standing element.
template <class I> void CopyThroughXML(I* source, I* target) {
    KestraXML::XCXMLTree tree;
    KestraXML::XIXMLElement* holder = tree.GetRoot()->NewElement(tree.GetRoot()->GetKey("Import"));
    if (source->putInXML(holder)) target->initWithXML(holder);
}

// Every source item, in order: the first target item of the same name, or a new one.
template <class I, class Name> void Merge(TZelObjectMgr<I>* target, TZelObjectMgr<I>* source, Name name) {
    if (!target || !source) return;
    for (unsigned int i = 0; i < source->getCount(); ++i) {
        I* from = source->getZelObject(i);
        const char* wanted = name(from);
        if (!wanted) continue;
        I* to = nullptr;
        for (unsigned int j = 0; j < target->getCount() && !to; ++j)
            if (SameName(name(target->getZelObject(j)), wanted)) to = target->getZelObject(j);
        if (!to) to = target->newZelObject(static_cast<unsigned int>(-1));
        if (to) CopyThroughXML(from, to);
    }
}

template <class I> const char* NameOf(const I* item) {
    return item->getName();
}

const char* PanoramaName(const IZelPanorama* p) {
    const TZelObjectMgr<IZelPanoNode>* nodes = p->getNodes();
    // A panorama without nodes has no name to match, and is skipped.
    return nodes && nodes->getCount() ? nodes->getZelObject(0)->getName() : nullptr;
}

const char* DefinitionName(const IZelZelObjectDefinition* d) {
    return d->getDefaultName();
}

void NoteDefaultLayers(CImportContext& context) {
    IZelLayerInfo* info = context.mSource->getLayersInfo();
    if (!info) return;
    for (const char* name : kClassNames) context.mDefaultLayers[name] = *info->getDefaultLayer(name);
}

void CrossReferenceLayers(CImportContext& context) {
    TZelObjectMgr<IZelLayer>* from = context.mSource->getLayers();
    TZelObjectMgr<IZelLayer>* to = context.mTarget->getLayers();
    for (unsigned int i = 0; i < from->getCount(); ++i)
        for (unsigned int j = 0; j < to->getCount(); ++j)
            if (SameName(from->getZelObject(i)->getName(), to->getZelObject(j)->getName())) {
                context.mIdentities[*from->getZelObject(i)->getUUID()] = *to->getZelObject(j)->getUUID();
                break;
            }
}

// The imported instances point at the target's layers of the same names.
void FinalPass(CImportContext& context, int flags) {
    if (!(flags & 0x40)) return;
    TZelObjectMgr<IZelObjectInstance>* instances = context.mTarget->getObjectInstances();
    for (unsigned int i = 0; i < instances->getCount(); ++i) {
        IZelObjectInstance* instance = instances->getZelObject(i);
        std::map<CZelUUID, CZelUUID>::const_iterator it = context.mIdentities.find(*instance->getLayerId());
        if (it != context.mIdentities.end()) instance->setLayerId(it->second);
    }
}

} // namespace

void CZelMgr::doImportReference(CZelMgr* target, CZelMgr* source, int flags) {
    if (!target || !source) return;
    try {
        CImportContext context{target, source, {}, {}};
        if (flags & 0x40) {
            NoteDefaultLayers(context);
            Merge(target->getObjectDefinitions(), source->getObjectDefinitions(), DefinitionName);
            Merge(target->getObjectInstances(), source->getObjectInstances(), NameOf<IZelObjectInstance>);
        }
        if (flags & 0x01) Merge(target->getProperties(), source->getProperties(), NameOf<CZelProperty>);
        if (flags & 0x10) Merge(target->getLights(), source->getLights(), NameOf<CZelLight>);
        if (flags & 0x20) Merge(target->getHeliodons(), source->getHeliodons(), NameOf<CZelHeliodon>);
        CrossReferenceLayers(context);
        if (flags & 0x80) Merge(target->getCameras(), source->getCameras(), NameOf<CZelCamera>);
        if (flags & 0x100)
            Merge(target->getParallelViews(), source->getParallelViews(), NameOf<IZelParallelView>);
        if (flags & 0x200) Merge(target->getViewObjects(), source->getViewObjects(), NameOf<CZelViewObject>);
        CZelMgrEx* targetEx = target->getMgrEx(eZelExtendedVersion6);
        CZelMgrEx* sourceEx = source->getMgrEx(eZelExtendedVersion6);
        if ((flags & 0x400) && targetEx && sourceEx)
            Merge(targetEx->getPanoramas(), sourceEx->getPanoramas(), PanoramaName);
        if ((flags & 0x800) && source->getScenarios()->getCount() > 0) {
            TZelObjectMgr<IZelScenario>* scenarios = target->getScenarios();
            if (scenarios->getCount() == 0) scenarios->newZelObject(static_cast<unsigned int>(-1));
            if (scenarios->getCount() > 0)
                CopyThroughXML(source->getScenarios()->getZelObject(0), scenarios->getZelObject(0));
        }
        FinalPass(context, flags);
    } catch (const std::exception& e) {
        // Nothing leaves the boundary; what was copied stays.
        Kestra::XLogError("CZelMgr::doImportReference: %s", e.what());
    }
}

} // namespace KeZel
