#include "frame/CZEL.h"

#include "foundation/Errors.h"
#include "codec/ZelXMLIO.h"
#include "frame/Detection.h"
#include "frame/Progress.h"
#include "frame/Providers.h"
#include "frame/SceneContent.h"
#include "frame/SceneGeometry.h"
#include "frame/StreamAdapters.h"
#include "xml/XMLTree.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <stdexcept>

namespace KeZel {

using namespace Kestra;
using KestraXML::XIXMLElement;
using KestraXML::XIXMLNode;

CZEL::CZEL(EVersionZEL version, CZelFeedback* feedback, CZelExtStorage* storage)
    : mLegacyLevel{2, 2}, mFileVersion{5, 1}, mOldClient(version < 8), mLegacyCurrentFlags(7),
      mClientVersion(version), mFeedback(feedback), mExtStorage(storage), mHasTransform(false),
      mConverting(false), mLanguageCode(static_cast<unsigned short>('e' * 256 + 'n')), mLanguage{'e', 'n', 0},
      mReadingVantoriumMaterials(false), mBefore202(false), mSkipDataBlocks(false), mTree(nullptr),
      mFileNode(nullptr), mApplicationNode(nullptr), mZelNode(nullptr), mPreviewImage(this), mImages(this) {
    mGeometry.reset(NewZelGeometry(this));
    for (int i = 0; i < 16; ++i) mTransform[i] = (i % 5 == 0) ? 1.0 : 0.0;
    // The version is tested before anything is allocated.
    if (version > eZelVersionCurrent) XThrow("Client is newer than Zel Library!");
    if (version < eZelVersion5) XThrow("Client is obsolete for this Zel Library!");
    makeTree();
    mScene.reset(new CZelSceneContent(this));
}

CZEL::~CZEL() {
    mScene.reset();
    deleteTree();
}

void CZEL::deleteTree() {
    delete mTree;
    mTree = nullptr;
    mFileNode = nullptr;
    mApplicationNode = nullptr;
    mZelNode = nullptr;
}

void CZEL::makeTree() {
    deleteTree();
    mTree = new KestraXML::XCXMLTree;
    XIXMLElement* root = mTree->GetRoot();
    root->NewPI("xml", "version=\"1.0\" encoding=\"UTF-8\"");
    mZelNode = root->NewPI("Zel", "library=\"2.01\" file=\"5.0\"");
    std::string application = "name=\"" + mApplicationName + "\" version=\"" + mApplicationVersion + "\"";
    mApplicationNode = root->NewPI("Application", application.c_str());
    mFileNode = CZelXMLIO::add(root, "Zel.File");
    CZelXMLIO::add(mFileNode, "Preview.Image")->NewData(new CImageProvider(this, &mPreviewImage));
    CZelXMLIO::add(mFileNode, "Images");
    attachGeometryBlock(CZelXMLIO::add(mFileNode, "Points"), true);
    attachGeometryBlock(CZelXMLIO::add(mFileNode, "Polygons"), false);
}

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

IZelImage* CZEL::getPreviewImage() {
    return &mPreviewImage;
}

TZelObjectMgr<IZelImage>* CZEL::getImages() {
    return &mImages;
}

void CZEL::reportProgress(int current, int total) {
    ZelReportProgress(mFeedback, asMgr(), current, total);
}

// ---- The document: comments, save URL, application data. Each accessor guards itself.

template <class R, class F> R CZEL::guarded(const char* where, R empty, F body) {
    try {
        if (!mTree) XThrow("mTree is NULL");
        if (!mFileNode) XThrow("mFileNode is NULL");
        return body();
    } catch (const std::exception& e) {
        reportException(where, e.what());
    } catch (...) {
        reportException(where, nullptr);
    }
    return empty;
}

const char* CZEL::getComment(int index) {
    return guarded("CZelMgr::getComment", static_cast<const char*>(nullptr), [&]() -> const char* {
        int n = 0;
        for (XIXMLNode* node = mTree->GetRoot()->GetFirstNode(); node; node = node->GetNext())
            if (KestraXML::XIXMLComment* c = node->AsComment()) {
                if (n == index) return c->GetText();
                ++n;
            }
        return nullptr;
    });
}

int CZEL::setComment(const char* text, int index) {
    return guarded("CZelMgr::setComment", 0, [&]() -> int {
        XIXMLElement* root = mTree->GetRoot();
        int n = 0;
        for (XIXMLNode* node = root->GetFirstNode(); node; node = node->GetNext())
            if (KestraXML::XIXMLComment* c = node->AsComment()) {
                if (n == index) {
                    if (text)
                        c->SetText(text);
                    else
                        node->Destroy();
                    return index;
                }
                ++n;
            }
        if (!text) return -1;
        // A new comment lands behind the others and in front of the root element.
        KestraXML::XIXMLComment* c = root->NewComment(text);
        XAssertPointer(c);
        root->MoveNode(c->AsNode(), mFileNode->AsNode());
        return n;
    });
}

const char* CZEL::getURL() {
    return guarded("CZelMgr::getURL", "", [&]() -> const char* {
        const char* text = CZelXMLIO::textOf(CZelXMLIO::find(mFileNode, "Save.Url"));
        return text ? text : "";
    });
}

void CZEL::setURL(const char* url) {
    guarded("CZelMgr::setURL", 0, [&]() -> int {
        XIXMLElement* e = CZelXMLIO::findOrAdd(mFileNode, "Save.Url");
        if (KestraXML::XIXMLData* data = e->GetData())
            data->SetText(url ? url : "");
        else
            e->NewData(url ? url : "");
        return 0;
    });
}

XIXMLElement* CZEL::getApplicationData(const char* tag) {
    return guarded("CZelMgr::getApplicationData", static_cast<XIXMLElement*>(nullptr),
                   [&]() -> XIXMLElement* {
                       if (!tag || !*tag) XThrow("Invalid application tag");
                       return CZelXMLIO::findOrAdd(CZelXMLIO::findOrAdd(mFileNode, "Application.Data"), tag);
                   });
}

void CZEL::clearGeometryBlocks() {
    if (!mFileNode) return;
    CZelXMLIO::removeAll(mFileNode, "Points");
    CZelXMLIO::removeAll(mFileNode, "Polygons");
}

// ---- Slots filled by the scene manager; until then they answer their empty value.
CZelAmbient* CZEL::getAmbient() {
    return mScene->mAmbient.get();
}
CZelAtmosphere* CZEL::getAtmosphere() {
    return mScene->mAtmosphere.get();
}
CZelBackground* CZEL::getBackground() {
    return mScene->mBackground.get();
}
TZelObjectMgr<CZelCamera>* CZEL::getCameras() {
    return mScene->mCameras.get();
}
TZelObjectMgr<CZelProperty>* CZEL::getProperties() {
    return mScene->mProperties.get();
}
TZelObjectMgr<CZelLight>* CZEL::getLights() {
    return mScene->mLights.get();
}
TZelObjectMgr<IZelCameraPath>* CZEL::getFirstAnimationPaths() {
    return mScene->mAnimations->getCount() ? &mScene->mAnimations->at(0)->paths() : nullptr;
}
TZelObjectMgr<IZelPanoNode>* CZEL::getFirstPanoramaNodes() {
    return mScene->mPanoramas->getCount() ? &mScene->mPanoramas->at(0)->nodes() : nullptr;
}
TZelObjectMgr<CZelPanoLink>* CZEL::getFirstPanoramaLinks() {
    return mScene->mPanoramas->getCount() ? &mScene->mPanoramas->at(0)->links() : nullptr;
}
TZelObjectMgr<CZelViewObject>* CZEL::getViewObjects() {
    return mScene->mViewObjects.get();
}
CZelHeliodon* CZEL::getHeliodon() {
    return mScene->mHeliodons->getCount() ? mScene->mHeliodons->at(0) : nullptr;
}
TZelObjectMgr<IZelParallelView>* CZEL::getParallelViews() {
    return mScene->mParallelViews.get();
}
TZelObjectMgr<CZelHeliodon>* CZEL::getHeliodons() {
    return mScene->mHeliodons.get();
}
TZelObjectMgr<IZelLightsGroup>* CZEL::getLightsGroups() {
    return mScene->mLightsGroups.get();
}
IZelZelObjectDefinition* CZEL::getObjectDefinition() {
    return mScene->mObjectDefinition.get();
}
TZelObjectMgr<IZelObjectInstance>* CZEL::getObjectInstances() {
    return mScene->mObjectInstances.get();
}
TZelObjectMgr<IZelScenario>* CZEL::getScenarios() {
    return mScene->mScenarios.get();
}
TZelObjectMgr<CZel3DPath>* CZEL::get3DPaths() {
    return mScene->m3DPaths.get();
}
TZelObjectMgr<IZelEnvironment>* CZEL::getEnvironments() {
    return mScene->mEnvironments.get();
}
TZelObjectMgr<IZelGround>* CZEL::getGrounds() {
    return mScene->mGrounds.get();
}
TZelObjectMgr<IZelLayer>* CZEL::getLayers() {
    return mScene->mLayers.get();
}
TZelObjectMgr<IZelLayer>* CZEL::getLayerList() {
    return mScene->mLayers.get();
}
IZelLayerInfo* CZEL::getLayersInfo() {
    return mScene->mLayersInfo.get();
}
TZelObjectMgr<IZelZelObjectDefinition>* CZEL::getObjectDefinitions() {
    return mScene->mObjectDefinitions.get();
}
int CZEL::readMediaInfo(CZelStream* stream) {
    if (!stream) return 0;
    try {
        CZELXMLReadStream input(stream);
        CReadMediaInfo reader(asMgr());
        reader.ParseSelective(&input);
    } catch (...) {
    }
    return 0;
}
CZelHeliodonOpt* CZEL::getHeliodonOpt() {
    return mScene->mHeliodonOpt.get();
}
CZelRenderingOpt* CZEL::getRenderingOpt() {
    return mScene->mRenderingOpt.get();
}
IZelViewOpt* CZEL::getPerspectiveRenderingOpt() {
    return mScene->mPerspectiveRenderingOpt.get();
}
CZelPanoramaRenderingOpt* CZEL::getVRRenderingOpt() {
    return mScene->mVRRenderingOpt.get();
}
IZelViewOpt* CZEL::getAnimationRenderingOpt() {
    return mScene->mAnimationRenderingOpt.get();
}
IZelViewOpt* CZEL::getViewObjectRenderingOpt() {
    return mScene->mObjectRenderingOpt.get();
}
TZelObjectMgr<IZelAnimation>* CZEL::getAnimations() {
    return mScene->mAnimations.get();
}
TZelObjectMgr<IZelPanorama>* CZEL::getPanoramas() {
    return mScene->mPanoramas.get();
}
TZelObjectMgr<IZelBBMgrData>* CZEL::getBillboards() {
    return mScene->mBillboards.get();
}
IZelInsertionObject* CZEL::getInsertionObject() {
    return mScene->mInsertionObject.get();
}
TZelObjectMgr<IZelParallelView>* CZEL::getParallelViewsList() {
    return mScene->mParallelViews.get();
}
CZelRenderingOpt* CZEL::getParallelRenderingOpt() {
    return mScene->mParallelRenderingOpt->getRenderingOpt();
}
IZelViewOpt* CZEL::getVRViewOptions() {
    return &mScene->mVRRenderingOpt->viewOpt();
}
IZelViewOpt* CZEL::getParallelViewOptions() {
    return &mScene->mParallelRenderingOpt->viewOpt();
}
TZelObjectMgr<IZelParallelView>* CZEL::getWorkingWindows() {
    return mScene->mWorkingWindows.get();
}
CZelProperty* CZEL::newShader() {
    return mScene->mShaders->newItem();
}
void CZEL::removeShader(CZelProperty* property) {
    int index = mScene->mShaders->indexOf(property);
    if (index >= 0) mScene->mShaders->removeObject(static_cast<unsigned int>(index));
}
} // namespace KeZel
