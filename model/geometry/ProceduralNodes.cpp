#include "model/geometry/ProceduralNodes.h"

#include "codec/ZelXMLIO.h"
#include "foundation/Errors.h"
#include "xml/XMLTree.h"

#include <cstring>

namespace KeZel {

using namespace Kestra;
using KestraXML::XCXMLTree;
using KestraXML::XIXMLAttribute;
using KestraXML::XIXMLElement;

// ---- Chess

CChessNode::CChessNode(CZelTCE* tree)
    : TTCENode<IChessNode>(tree), mTable1(true), mTable2(true), mTable3(true) {}

CChessNode::CChessNode(CZelTCE* tree, const CChessNode& source)
    : TTCENode<IChessNode>(tree, source), mF(source.mF), mTable1(true), mTable2(true), mTable3(true) {
    mTable1.copyFrom(source.mTable1);
    mTable2.copyFrom(source.mTable2);
    mTable3.copyFrom(source.mTable3);
}

// ---- Turbulence

CTurbulenceNode::CTurbulenceNode(CZelTCE* tree) : TTCENode<ITurbulenceNode>(tree), mTable(true) {}

CTurbulenceNode::CTurbulenceNode(CZelTCE* tree, const CTurbulenceNode& source)
    : TTCENode<ITurbulenceNode>(tree, source), mF(source.mF), mTable(true) {
    mTable.copyFrom(source.mTable);
}

// ---- Fresnel

void CFresnelNode::setMinReflection(double reflection) {
    if (reflection < 0) {
        report("IFresnelNode::setMinReflection - Value is lower than 0");
        reflection = 0;
    } else if (reflection > 1) {
        report("IFresnelNode::setMinReflection - Value is higer than 1");
        reflection = 1;
    }
    mF.mMinReflection = reflection;
}

// ---- Custom

std::unique_ptr<XCXMLTree> CCustomNode::MakeData(const XIXMLElement* data) {
    std::unique_ptr<XCXMLTree> tree(new XCXMLTree);
    if (data) {
        data->AsNode()->CopyTo(tree->GetRoot());
    } else {
        XIXMLElement* root = CZelXMLIO::add(tree->GetRoot(), "Custom.Data");
        CZelXMLIO::setAttribute(root, "Class", "Unknown");
    }
    return tree;
}

CCustomNode::CCustomNode(CZelTCE* tree) : TTCENode<ICustomNode>(tree), mData(MakeData(nullptr)) {}

CCustomNode::CCustomNode(CZelTCE* tree, const CCustomNode& source)
    : TTCENode<ICustomNode>(tree, source), mData(MakeData(source.getCustomData())) {}

CCustomNode::~CCustomNode() {}

XIXMLElement* CCustomNode::getCustomData() {
    return mData->GetRoot()->GetFirstElement();
}

const XIXMLElement* CCustomNode::getCustomData() const {
    return mData->GetRoot()->GetFirstElement();
}

const char* CCustomNode::getClass() const {
    const XIXMLElement* data = getCustomData();
    XIXMLAttribute* attribute = data ? CZelXMLIO::findAttribute(data, "Class") : nullptr;
    if (!attribute) {
        report("ICustomNode::getClass - data integrity failed");
        return nullptr;
    }
    return attribute->GetValue();
}

void CCustomNode::setClass(const char* name) {
    XIXMLElement* data = getCustomData();
    XIXMLAttribute* attribute = data ? CZelXMLIO::findAttribute(data, "Class") : nullptr;
    if (attribute && name) attribute->SetValue(name);
    // Reported on every call, after a success as well.
    report("ICustomNode::setClass - data integrity failed");
}

bool CCustomNode::initWithXML(const XIXMLElement* data) {
    if (!data || std::strcmp(*data->GetKey(), "Custom.Data") != 0 ||
        !CZelXMLIO::findAttribute(data, "Class")) {
        report("ICustomNode::initWithXML - invalid parameter");
        return false;
    }
    mData = MakeData(data);
    return true;
}

} // namespace KeZel
