#include "frame/CZEL.h"

#include "foundation/Errors.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <stdexcept>

namespace KeZel {

using namespace Kestra;

CZEL::CZEL(EVersionZEL version, CZelFeedback* feedback, CZelExtStorage* storage)
    : mLegacyLevel{2, 2}, mFileVersion{5, 1}, mOldClient(version < 8), mLegacyCurrentFlags(7),
      mClientVersion(version), mFeedback(feedback), mExtStorage(storage), mHasTransform(false),
      mConverting(false), mLanguageCode(static_cast<unsigned short>('e' * 256 + 'n')), mLanguage{'e', 'n', 0},
      mReadingVantoriumMaterials(false), mBefore202(false), mSkipDataBlocks(false) {
    for (int i = 0; i < 16; ++i) mTransform[i] = (i % 5 == 0) ? 1.0 : 0.0;
    if (version > eZelVersionCurrent) XThrow("Client is newer than Zel Library!");
    if (version < eZelVersion5) XThrow("Client is obsolete for this Zel Library!");
}

CZEL::~CZEL() {}

void CZEL::report(const char* text) {
    if (mFeedback) mFeedback->reportError(asMgr(), text);
}

void CZEL::reportFormat(const char* format, ...) {
    if (!mFeedback) return;
    char buffer[2048];
    va_list args;
    va_start(args, format);
    std::vsnprintf(buffer, sizeof buffer, format, args);
    va_end(args);
    mFeedback->reportError(asMgr(), buffer);
}

void CZEL::reportException(const char* where, const char* what) {
    char buffer[1024];
    if (what)
        std::snprintf(buffer, sizeof buffer, "Exception in %s : %s", where, what);
    else
        std::snprintf(buffer, sizeof buffer, "Unknown exception in %s", where);
    report(buffer);
}

void CZEL::destroy() {
    delete this;
}

void CZEL::setApplicationInfo(const char* name, const char* version) {
    mApplicationName = name ? name : "";
    mApplicationVersion = version ? version : "";
}

CZelMgrEx* CZEL::getMgrEx(int version) {
    if (version > eZelExtendedVersionCurrent) {
        report("Client is newer than Zel Library!");
        return nullptr;
    }
    if (version < eZelExtendedVersion5) {
        report("Client is obsolete for this Zel Library!");
        return nullptr;
    }
    return static_cast<CZelMgrEx*>(this);
}

const CZelVersion* CZEL::getVersion() {
    return &mVersion;
}

bool CZEL::getFileVersion(int* major, int* minor) {
    if (major) *major = mFileVersion[0];
    if (minor) *minor = mFileVersion[1];
    return true;
}

const char* CZEL::getLanguage() {
    return mLanguage;
}

void CZEL::setLanguage(const char* code) {
    if (!code) return;
    unsigned char a = static_cast<unsigned char>(code[0]);
    unsigned char b = a ? static_cast<unsigned char>(code[1]) : 0;
    mLanguageCode = static_cast<unsigned short>(a * 256 + b);
    mLanguage[0] = static_cast<char>(a);
    mLanguage[1] = static_cast<char>(b);
    mLanguage[2] = 0;
}

const double* CZEL::getTransform() {
    return mTransform;
}

void CZEL::setTransform(const double* matrix) {
    if (!matrix) return;
    std::memcpy(mTransform, matrix, sizeof mTransform);
    // Kept as files have been read under it: the flag says that SOME element agrees with
    // the identity (or is not a number), not that the matrix differs from it.
    mHasTransform = false;
    for (int i = 0; i < 16; ++i) {
        double identity = (i % 5 == 0) ? 1.0 : 0.0;
        double v = mTransform[i];
        if (v == identity || v != v) {
            mHasTransform = true;
            break;
        }
    }
}

bool CZEL::isBefore202() {
    return mBefore202;
}

// ---- Slots filled by the scene manager; until then they answer their empty value.
int CZEL::read(CZelStream*) {
    return 1;
}
int CZEL::write(CZelStream* stream) {
    return write(stream, nullptr);
}
int CZEL::write(CZelStream*, const CZelVersion*) {
    return 2;
}
CZelAmbient* CZEL::getAmbient() {
    return nullptr;
}
CZelAtmosphere* CZEL::getAtmosphere() {
    return nullptr;
}
CZelBackground* CZEL::getBackground() {
    return nullptr;
}
TZelObjectMgr<CZelCamera>* CZEL::getCameras() {
    return nullptr;
}
TZelObjectMgr<CZelPolygon>* CZEL::getPolygons() {
    return nullptr;
}
TZelObjectMgr<CZelVector>* CZEL::getPoints() {
    return nullptr;
}
TZelObjectMgr<CZelProperty>* CZEL::getProperties() {
    return nullptr;
}
TZelObjectMgr<CZelLight>* CZEL::getLights() {
    return nullptr;
}
TZelObjectMgr<IZelCameraPath>* CZEL::getFirstAnimationPaths() {
    return nullptr;
}
TZelObjectMgr<IZelPanoNode>* CZEL::getFirstPanoramaNodes() {
    return nullptr;
}
TZelObjectMgr<CZelPanoLink>* CZEL::getFirstPanoramaLinks() {
    return nullptr;
}
TZelObjectMgr<CZelViewObject>* CZEL::getViewObjects() {
    return nullptr;
}
CZelHeliodon* CZEL::getHeliodon() {
    return nullptr;
}
TZelObjectMgr<IZelParallelView>* CZEL::getParallelViews() {
    return nullptr;
}
TZelObjectMgr<CZelHeliodon>* CZEL::getHeliodons() {
    return nullptr;
}
TZelObjectMgr<IZelLightsGroup>* CZEL::getLightsGroups() {
    return nullptr;
}
IZelImage* CZEL::getPreviewImage() {
    return nullptr;
}
TZelObjectMgr<IZelImage>* CZEL::getImages() {
    return nullptr;
}
IZelZelObjectDefinition* CZEL::getObjectDefinition() {
    return nullptr;
}
TZelObjectMgr<IZelObjectInstance>* CZEL::getObjectInstances() {
    return nullptr;
}
const char* CZEL::getComment(int) {
    return nullptr;
}
int CZEL::setComment(const char*, int) {
    return -1;
}
const char* CZEL::getURL() {
    return "";
}
void CZEL::setURL(const char*) {}
KestraXML::XIXMLElement* CZEL::getApplicationData(const char*) {
    return nullptr;
}
TZelObjectMgr<IZelScenario>* CZEL::getScenarios() {
    return nullptr;
}
TZelObjectMgr<CZel3DPath>* CZEL::get3DPaths() {
    return nullptr;
}
TZelObjectMgr<IZelEnvironment>* CZEL::getEnvironments() {
    return nullptr;
}
TZelObjectMgr<IZelGround>* CZEL::getGrounds() {
    return nullptr;
}
TZelObjectMgr<IZelLayer>* CZEL::getLayers() {
    return nullptr;
}
TZelObjectMgr<IZelLayer>* CZEL::getLayerList() {
    return nullptr;
}
IZelLayerInfo* CZEL::getLayersInfo() {
    return nullptr;
}
TZelObjectMgr<IZelZelObjectDefinition>* CZEL::getObjectDefinitions() {
    return nullptr;
}
void CZEL::readDataBlocks(CZelStream*, CZelExtStorage*) {}
void CZEL::clearGeometryBlocks() {}
int CZEL::readMediaInfo(CZelStream*) {
    return 0;
}
CZelHeliodonOpt* CZEL::getHeliodonOpt() {
    return nullptr;
}
CZelRenderingOpt* CZEL::getRenderingOpt() {
    return nullptr;
}
IZelViewOpt* CZEL::getPerspectiveRenderingOpt() {
    return nullptr;
}
CZelPanoramaRenderingOpt* CZEL::getVRRenderingOpt() {
    return nullptr;
}
IZelViewOpt* CZEL::getAnimationRenderingOpt() {
    return nullptr;
}
IZelViewOpt* CZEL::getViewObjectRenderingOpt() {
    return nullptr;
}
TZelObjectMgr<IZelAnimation>* CZEL::getAnimations() {
    return nullptr;
}
TZelObjectMgr<IZelPanorama>* CZEL::getPanoramas() {
    return nullptr;
}
TZelObjectMgr<IZelBBMgrData>* CZEL::getBillboards() {
    return nullptr;
}
IZelInsertionObject* CZEL::getInsertionObject() {
    return nullptr;
}
TZelObjectMgr<IZelParallelView>* CZEL::getParallelViewsList() {
    return nullptr;
}
CZelRenderingOpt* CZEL::getParallelRenderingOpt() {
    return nullptr;
}
int CZEL::readShader(CZelProperty*, CZelStream*) {
    return 1;
}
int CZEL::writeShader(CZelProperty*, CZelStream*) {
    return 2;
}
IZelViewOpt* CZEL::getVRViewOptions() {
    return nullptr;
}
IZelViewOpt* CZEL::getParallelViewOptions() {
    return nullptr;
}
TZelObjectMgr<IZelParallelView>* CZEL::getWorkingWindows() {
    return nullptr;
}
CZelProperty* CZEL::newShader() {
    return nullptr;
}
void CZEL::removeShader(CZelProperty*) {}
bool CZEL::Read(KestraXML::XIXMLElement*, KestraXML::CXMLReadStream*, KestraXML::CXMLParser*) {
    return true;
}

} // namespace KeZel
