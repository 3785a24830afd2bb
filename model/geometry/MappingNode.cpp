#include "model/geometry/MappingNode.h"

#include "codec/ShaderCodec.h"
#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "frame/UUID.h"

#include <algorithm>

namespace KeZel {

using namespace Kestra;

CMappingNode::CMappingNode(CZelTCE* tree)
    : TTCENode<IMappingNode>(tree), mMappingNodeId(NewZelUUID()), mMappingNodeParentId() {
    // Written in the old client's convention, then exported into the client's own.
    mFields.mNormal = {0, 0, -1};
    mFields.mXAxis = {-1, 0, 0};
    mFields.mYAxis = {0, -1, 0};
    if (CZEL* zel = getZel()) {
        zel->exportPoint(mFields.mNormal);
        zel->exportPoint(mFields.mXAxis);
        zel->exportPoint(mFields.mYAxis);
    }
}

CMappingNode::CMappingNode(CZelTCE* tree, const CMappingNode& source)
    : TTCENode<IMappingNode>(tree, source), mFields(source.mFields), mMappingNodeId(NewZelUUID()),
      mMappingNodeParentId() {
    for (int kind = eDiffuseMap; kind <= eMovieMap; ++kind) mURLs[kind] = source.mURLs[kind];
}

const char* CMappingNode::getURL(int kind) const {
    if (kind < eDiffuseMap || kind > eMovieMap) {
        report("IMappingNode::getURL - Invalid map type");
        return "";
    }
    return mURLs[kind].c_str();
}

void CMappingNode::setURL(const char* url, int kind) {
    if (kind < eDiffuseMap || kind > eMovieMap) {
        report("IMappingNode::setURL - Invalid map type");
        return;
    }
    mURLs[kind] = url ? url : "";
}

const CZelUUID& CMappingNode::getMapLinked(unsigned int index) const {
    static const CZelUUID kNull = CZelUUID();
    if (index >= mLinkedMaps.size()) {
        report("CMappingNode::getMapLinked - Invalid index");
        return kNull;
    }
    return mLinkedMaps[index];
}

void CMappingNode::addLinkedMap(const CZelUUID& uuid) {
    if (uuid.isNull()) {
        report("CMappingNode::addLinkedMap - NULL UUID is Invalid");
        return;
    }
    if (std::find(mLinkedMaps.begin(), mLinkedMaps.end(), uuid) != mLinkedMaps.end()) {
        report("CMappingNode::addLinkedMap - Map already linked");
        return;
    }
    mLinkedMaps.push_back(uuid);
}

void CMappingNode::removeLinkedMap(const CZelUUID& uuid) {
    std::vector<CZelUUID>::iterator it = std::find(mLinkedMaps.begin(), mLinkedMaps.end(), uuid);
    if (it == mLinkedMaps.end()) {
        report("CMappingNode::removeLinkedMap - Map isn't linked");
        return;
    }
    mLinkedMaps.erase(it);
}

KestraXML::XIXMLElement* CMappingNode::putInXML(KestraXML::XIXMLElement* parent) {
    CZEL* zel = getZel();
    XAssertPointer(zel, "CTCENode::putInXML - node without a manager");
    CZelXMLIO io(zel);
    return io.guardPut("CTCENode::putInXML", [&] {
        KestraXML::XIXMLElement* e = CZelXMLIO::add(parent, "Node");
        ZelPutNodeHead(io, e, *this);
        ZelPutNodeFields(io, e, *this);
        return e;
    });
}

bool CMappingNode::initWithXML(KestraXML::XIXMLElement* parent) {
    CZEL* zel = getZel();
    XAssertPointer(zel, "CTCENode::initWithXML - node without a manager");
    CZelXMLIO io(zel, true);
    return io.guardInit("CTCENode::initWithXML", [&] {
        const KestraXML::XIXMLElement* e = CZelXMLIO::find(parent, "Node");
        if (!e) return false;
        ZelGetNodeHead(io, e, *this);
        CZelNodeReading reading = {mTree, true, nullptr};
        ZelGetNodeFields(io, e, *this, reading);
        return true;
    });
}

} // namespace KeZel
