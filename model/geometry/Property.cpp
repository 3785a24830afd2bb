#include "model/geometry/Property.h"

#include "codec/PropertyCodec.h"
#include "foundation/Errors.h"
#include "frame/CZEL.h"
#include "frame/UUID.h"
#include "model/geometry/IZelMappingNode.h"
#include "model/geometry/IZelProceduralNodes.h"

#include <cmath>

namespace KeZel {

using namespace Kestra;
using KestraXML::XIXMLElement;

namespace {

const CZelColor kBlack = {0, 0, 0, 0};
const CZelColor kDefaultDiffuse = {0, 100, 100, 100};

// Walks the chain of first children below `root` and answers the first node that `match`
// accepts. `deepest`, when given, gets the last node visited.
template <class T, class Match> T* Walk(ITCENode* root, Match match, ITCENode** deepest) {
    ITCENode* current = root;
    T* found = nullptr;
    while (ITCENode* child = current->getChild(0)) {
        current = child;
        if ((found = match(current))) break;
    }
    if (deepest) *deepest = current;
    return found;
}

ILeafNode* LeafOf(ITCENode* node) {
    return node->asLeaf();
}

IMappingNode* MappingOf(ITCENode* node) {
    IMappingNode* m = node->asMapping();
    return m && !m->isShader() ? m : nullptr;
}

} // namespace

// ---- Construction

CProperty::CProperty()
    : mZel(nullptr), mShaderId(), mShaderNames(nullptr), mVisible(false), mCastShadow(false),
      mBillboard(false), mSmooth(0), mScale(0), mId(), mOverloadPropIndex(), mOverloadId(),
      mReceiveShadow(false), mUVDefined(false), mUIValue(0), mRoot(this) {}

CProperty::CProperty(CPropertyList* list) : CProperty(list ? list->getZel() : nullptr) {}

CProperty::CProperty(CZEL* zel)
    : mZel(zel), mName("Material #0"), mShaderId(), mShaderNames(zel), mVisible(true), mCastShadow(true),
      mBillboard(false), mSmooth(1.0), mScale(1.0), mId(NewZelUUID()), mOverloadPropIndex(NewZelUUID()),
      mOverloadId(), mReceiveShadow(true), mUVDefined(false), mUIValue(0), mRoot(this) {}

CProperty::~CProperty() {}

const CProperty* CProperty::FromTCE(const CZelTCE* tree) {
    return dynamic_cast<const CProperty*>(tree);
}

void CProperty::report(const char* text) const {
    if (mZel) mZel->report(text);
}

// ---- The facade's nodes

ILeafNode* CProperty::findLeaf() const {
    return Walk<ILeafNode>(const_cast<CRootNode*>(&mRoot), LeafOf, nullptr);
}

IMappingNode* CProperty::findMapping() const {
    return Walk<IMappingNode>(const_cast<CRootNode*>(&mRoot), MappingOf, nullptr);
}

ILeafNode* CProperty::needLeaf() {
    ITCENode* deepest = nullptr;
    if (ILeafNode* leaf = Walk<ILeafNode>(&mRoot, LeafOf, &deepest)) return leaf;
    CNodeRef leaf = ZelNewNode(eLeafNode, this);
    if (deepest->getChildCount() == 0)
        deepest->addChild(leaf.get());
    else
        deepest->setChild(0, leaf.get());
    return leaf->asLeaf(); // held by its parent from here on
}

IMappingNode* CProperty::needMapping() {
    if (IMappingNode* mapping = findMapping()) return mapping;
    CNodeRef mapping = ZelNewNode(eMappingNode, this);
    if (ITCENode* first = mRoot.getChild(0)) {
        // The mapping goes in above whatever the root held.
        mapping->addChild(first);
        mRoot.setChild(0, mapping.get());
    } else {
        CNodeRef leaf = ZelNewNode(eLeafNode, this);
        mapping->addChild(leaf.get());
        mRoot.addChild(mapping.get());
    }
    return mapping->asMapping();
}

ITCENode* CProperty::createNode(int kind) {
    if (kind == eRootNode) {
        report("CZelProperty::createNode - eRootNode node cannot be created");
        return nullptr;
    }
    if (kind < eRootNode || kind > eCustomNode) {
        report("CZelProperty::createNode - Unknown node type");
        return nullptr;
    }
    return ZelNewNode(kind, this).detach();
}

// ---- Own fields

void CProperty::setSmooth(double smooth) {
    mSmooth = smooth < 0.01 ? 0.01 : (smooth > 1.0 ? 1.0 : smooth);
}

void CProperty::setId(const CZelUUID& id) {
    mId = id.isNull() ? NewZelUUID() : id;
}

// ---- Leaf facade

CZelColor CProperty::getDiffuseColor() const {
    ILeafNode* l = findLeaf();
    return l ? l->getDiffuse() : kDefaultDiffuse;
}
void CProperty::setDiffuseColor(CZelColor color) {
    needLeaf()->setDiffuse(color);
}
CZelColor CProperty::getSpecularColor() const {
    ILeafNode* l = findLeaf();
    return l ? l->getSpecular() : kBlack;
}
void CProperty::setSpecularColor(CZelColor color) {
    needLeaf()->setSpecular(color);
}
void CProperty::getGlossy(double* glossy) const {
    if (glossy) *glossy = getGlossyValue();
}
void CProperty::setGlossy(double glossy) {
    needLeaf()->setGlossy(glossy);
}
double CProperty::getGlossyValue() const {
    ILeafNode* l = findLeaf();
    return l ? l->getGlossy() : 6.0;
}
CZelColor CProperty::getTransparentColor() const {
    ILeafNode* l = findLeaf();
    return l ? l->getTransparent() : kBlack;
}
void CProperty::setTransparentColor(CZelColor color) {
    needLeaf()->setTransparent(color);
}
CZelColor CProperty::getReflectionColor() const {
    ILeafNode* l = findLeaf();
    return l ? l->getReflection() : kBlack;
}
void CProperty::setReflectionColor(CZelColor color) {
    needLeaf()->setReflection(color);
}
CZelColor CProperty::getNeonColor() const {
    ILeafNode* l = findLeaf();
    return l ? l->getNeonColor() : kBlack;
}
void CProperty::setNeonColor(CZelColor color) {
    needLeaf()->setNeonColor(color);
}
double CProperty::getNeonValue() const {
    ILeafNode* l = findLeaf();
    return l ? l->getNeonValue() : 0;
}
void CProperty::setNeonValue(double value) {
    needLeaf()->setNeonValue(value);
}
double CProperty::getRefraction() const {
    ILeafNode* l = findLeaf();
    return l ? l->getRefraction() : 0;
}
void CProperty::setRefraction(double refraction) {
    needLeaf()->setRefraction(refraction);
}
CZelColor CProperty::getEmittingColor() const {
    ILeafNode* l = findLeaf();
    return l ? l->getEmittingColor() : kBlack;
}
void CProperty::setEmittingColor(CZelColor color) {
    needLeaf()->setEmittingColor(color);
}
double CProperty::getEmittingPower() const {
    ILeafNode* l = findLeaf();
    return l ? l->getEmittingPower() : 0;
}
void CProperty::setEmittingPower(double power) {
    needLeaf()->setEmittingPower(power);
}

double CProperty::getReflectionLimit() const {
    if (IMappingNode* m = findMapping()) return m->getReflectionLimit();
    ILeafNode* l = findLeaf();
    return l ? l->getReflectionLimit() : 0;
}
void CProperty::setReflectionLimit(double limit) {
    if (IMappingNode* m = findMapping())
        m->setReflectionLimit(limit);
    else
        needLeaf()->setReflectionLimit(limit);
}

// ---- Mapping facade

const char* CProperty::getDiffuseMap() const {
    IMappingNode* m = findMapping();
    return m ? m->getURL(eDiffuseMap) : "";
}
void CProperty::setDiffuseMap(const char* url) {
    needMapping()->setURL(url, eDiffuseMap);
}
const char* CProperty::getNormalMap() const {
    IMappingNode* m = findMapping();
    return m ? m->getURL(eNormalMap) : "";
}
void CProperty::setNormalMap(const char* url) {
    needMapping()->setURL(url, eNormalMap);
}
double CProperty::getNormalMapPower() const {
    IMappingNode* m = findMapping();
    return m ? m->getNormalMap() : 0;
}
void CProperty::setNormalMapPower(double power) {
    needMapping()->setNormalMap(power);
}

int CProperty::getMapProjection() const {
    IMappingNode* m = findMapping();
    if (!m) return -1;
    switch (m->getProjection()) {
    case eOrthogonalProjection:
        return m->isPlanar() ? 1 : 0;
    case eVerticalProjection:
        return 2;
    case eSphericalProjection:
        return 3;
    case eYCylindricalProjection:
        return 4;
    case eXCylindricalProjection:
        return 5;
    case ePlanetaryProjection:
        return 6;
    case eUVProjection:
        return 7;
    default:
        return -1;
    }
}

void CProperty::setMapProjection(int projection) {
    // The mapping is made even for a value that is then ignored.
    IMappingNode* m = needMapping();
    static const int kProjections[8] = {
        eOrthogonalProjection,   eOrthogonalProjection,   eVerticalProjection,  eSphericalProjection,
        eYCylindricalProjection, eXCylindricalProjection, ePlanetaryProjection, eUVProjection};
    if (projection < 0 || projection > 7) return;
    m->setProjection(kProjections[projection]);
    if (projection <= 1) m->setPlanar(projection == 1);
}

bool CProperty::getMapAxes(CZelVector* origin, CZelVector* xAxis, CZelVector* yAxis) const {
    IMappingNode* m = findMapping();
    if (!m) return false;
    if (origin) *origin = *m->getOrigin();
    if (xAxis) *xAxis = *m->getXAxis();
    if (yAxis) *yAxis = *m->getYAxis();
    return true;
}

void CProperty::setMapAxes(const CZelVector& origin, const CZelVector& xAxis, const CZelVector& yAxis) {
    IMappingNode* m = needMapping();
    CZelVector n = {xAxis.y * yAxis.z - xAxis.z * yAxis.y, xAxis.z * yAxis.x - xAxis.x * yAxis.z,
                    xAxis.x * yAxis.y - xAxis.y * yAxis.x};
    double length2 = n.x * n.x + n.y * n.y + n.z * n.z;
    // Nearly parallel axes give no plane: the normal stays as it was.
    if (length2 > 1.1920928955078125e-7) {
        double length = std::sqrt(length2);
        n.x /= length;
        n.y /= length;
        n.z /= length;
        m->setNormal(n);
    }
    m->setOrigin(origin);
    m->setXAxis(xAxis);
    m->setYAxis(yAxis);
}

bool CProperty::getMapTransparentColor(CZelColor* color) const {
    IMappingNode* m = findMapping();
    if (!m) return false;
    if (color) *color = m->getTransparent();
    return true;
}
void CProperty::setMapTransparentColor(CZelColor color) {
    needMapping()->setTransparent(color);
}

bool CProperty::getMapRepeat(bool* xRepeat, bool* yRepeat) const {
    IMappingNode* m = findMapping();
    if (!m) return false;
    if (xRepeat) *xRepeat = m->isXRepeat();
    if (yRepeat) *yRepeat = m->isYRepeat();
    return true;
}
void CProperty::setMapRepeat(bool xRepeat, bool yRepeat) {
    IMappingNode* m = needMapping();
    m->setXRepeat(xRepeat);
    m->setYRepeat(yRepeat);
}

bool CProperty::getMapInvert(bool* xInvert, bool* yInvert) const {
    IMappingNode* m = findMapping();
    if (!m) return false;
    if (xInvert) *xInvert = m->isXInvert();
    if (yInvert) *yInvert = m->isYInvert();
    return true;
}
void CProperty::setMapInvert(bool xInvert, bool yInvert) {
    IMappingNode* m = needMapping();
    m->setXInvert(xInvert);
    m->setYInvert(yInvert);
}

bool CProperty::getMapSize(double* height, double* width) const {
    IMappingNode* m = findMapping();
    if (!m) return false;
    if (height) *height = m->getHeight();
    if (width) *width = m->getWidth();
    return true;
}
void CProperty::setMapSize(double height, double width) {
    IMappingNode* m = needMapping();
    m->setHeight(height);
    m->setWidth(width);
}

bool CProperty::getMapAngle(double* angle) const {
    IMappingNode* m = findMapping();
    if (!m) return false;
    if (angle) *angle = m->getAngle();
    return true;
}
void CProperty::setMapAngle(double angle) {
    needMapping()->setAngle(angle);
}

bool CProperty::getAngularLODShift(double* shift) const {
    IMappingNode* m = findMapping();
    if (!m) return false;
    if (shift) *shift = m->getAngularLODShift();
    return true;
}
void CProperty::setAngularLODShift(double shift) {
    needMapping()->setAngularLODShift(shift);
}

// The linear shift of a property has always been the mapping's angular one.
bool CProperty::getLinearLODShift(double* shift) const {
    return getAngularLODShift(shift);
}
void CProperty::setLinearLODShift(double shift) {
    setAngularLODShift(shift);
}

bool CProperty::getCutAlpha() const {
    IMappingNode* m = findMapping();
    return m ? m->isCutAlpha() : false;
}
void CProperty::setCutAlpha(bool cut) {
    needMapping()->setCutAlpha(cut);
}

void CProperty::setDisplayMode(bool mode) {
    needMapping()->setDisplayMode(mode);
}
bool CProperty::getDisplayMode() const {
    IMappingNode* m = findMapping();
    return m ? m->isDisplayMode() : false;
}

// ---- Copy and XML

bool CProperty::copyFrom(const CZelProperty* other) {
    try {
        XAssertPointer(other);
        const CZelTCE* tree = other->getTCE();
        XAssertPointer(tree);
        const IRootNode* root = tree->getRootNode();
        XAssertPointer(root);
        CNodeRef copy = ZelCloneNode(this, root->asNode()->getChild(0));
        mRoot.setChild(0, copy.get());
        setName(other->getName());
        setURL(tree->getURL());
        mVisible = other->isVisible();
        mCastShadow = other->isCastShadow();
        mBillboard = other->isBillboard();
        mSmooth = other->getSmooth();
        mScale = other->getScale();
        mOverloadPropIndex = *other->getOverloadPropIndex();
        mOverloadId = *other->getOverloadId();
        mReceiveShadow = other->isReceiveShadow();
        mUVDefined = other->isUVDefined();
        mShaderNames.copyFrom(*tree->getShaderNames());
        mShaderId = *tree->getShaderId();
        return true;
    } catch (...) {
        report("Can load property from another property");
        return false;
    }
}

XIXMLElement* CProperty::putInXML(XIXMLElement* parent) {
    if (!mZel) return nullptr;
    CZelXMLIO io(mZel);
    return io.guardPut("CZelProperty::putInXML", [&] { return ZelAddProperty(io, parent, *this); });
}

bool CProperty::initWithXML(XIXMLElement* parent) {
    if (!mZel) return false;
    CZelXMLIO io(mZel);
    return io.guardInit("CZelProperty::initWithXML", [&] {
        ZelGetProperty(io, CZelXMLIO::need(parent, "Property"), *this);
        return true;
    });
}

} // namespace KeZel
