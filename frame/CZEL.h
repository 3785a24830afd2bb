// CZEL: the one implementation of CZelMgr and CZelMgrEx, and the decoder of the XML data
// blocks of a scene. Every entity keeps a plain pointer to its CZEL to reach the feedback
// and the version flags through the internal API at the end of this class.
#pragma once

#include "frame/AxisRule.h"
#include "frame/ObjectLists.h"
#include "frame/ZelFrontier.h"
#include "frame/SceneImage.h"
#include "frame/ZelMgr.h"
#include "xml/XMLParser.h"

#include <memory>
#include <string>

namespace KestraXML {
class XCXMLTree;
class XIXMLPI;
} // namespace KestraXML

namespace KeZel {

class CTokenReader;
struct CZelSceneContent; // what the scene holds beside its geometry
class CZelGeometry;      // the points and polygons of the scene

// The name of the .db file that an .opt file names, without its folders: at most 255
// characters, cut at the last backslash or, without one, at the last slash.
std::string ZelDbFileName(const std::string& name);
struct CZelGeometryDeleter {
    void operator()(CZelGeometry* geometry) const;
};

class CZEL : public TZelFrontier<CZelMgr>, public TZelFrontier<CZelMgrEx>, public KestraXML::IXMLCDataReader {
public:
    // Sets every field to its default, then tests the client's version (raising
    // "Client is newer than Zel Library!" or "Client is obsolete for this Zel Library!").
    CZEL(EVersionZEL version, CZelFeedback* feedback, CZelExtStorage* storage);
    ~CZEL() override;

    // ---- CZelMgr
    void destroy() override;
    void setApplicationInfo(const char* name, const char* version) override;
    CZelMgrEx* getMgrEx(int version) override;
    const CZelVersion* getVersion() override;
    int read(CZelStream* stream) override;
    int write(CZelStream* stream) override;
    bool getFileVersion(int* major, int* minor) override;
    CZelAmbient* getAmbient() override;
    CZelAtmosphere* getAtmosphere() override;
    CZelBackground* getBackground() override;
    TZelObjectMgr<CZelCamera>* getCameras() override;
    TZelObjectMgr<CZelPolygon>* getPolygons() override;
    TZelObjectMgr<CZelVector>* getPoints() override;
    TZelObjectMgr<CZelProperty>* getProperties() override;
    TZelObjectMgr<CZelLight>* getLights() override;
    TZelObjectMgr<IZelCameraPath>* getFirstAnimationPaths() override;
    TZelObjectMgr<IZelPanoNode>* getFirstPanoramaNodes() override;
    TZelObjectMgr<CZelPanoLink>* getFirstPanoramaLinks() override;
    TZelObjectMgr<CZelViewObject>* getViewObjects() override;
    CZelHeliodon* getHeliodon() override;
    TZelObjectMgr<IZelParallelView>* getParallelViews() override;
    TZelObjectMgr<CZelHeliodon>* getHeliodons() override;
    TZelObjectMgr<IZelLightsGroup>* getLightsGroups() override;
    IZelImage* getPreviewImage() override;
    TZelObjectMgr<IZelImage>* getImages() override;
    IZelZelObjectDefinition* getObjectDefinition() override;
    TZelObjectMgr<IZelObjectInstance>* getObjectInstances() override;
    const char* getLanguage() override;
    void setLanguage(const char* code) override;
    const char* getComment(int index) override;
    int setComment(const char* text, int index) override;
    const char* getURL() override;
    void setURL(const char* url) override;
    KestraXML::XIXMLElement* getApplicationData(const char* tag) override;
    TZelObjectMgr<IZelScenario>* getScenarios() override;
    TZelObjectMgr<CZel3DPath>* get3DPaths() override;
    TZelObjectMgr<IZelEnvironment>* getEnvironments() override;
    TZelObjectMgr<IZelGround>* getGrounds() override;
    TZelObjectMgr<IZelLayer>* getLayers() override;
    TZelObjectMgr<IZelLayer>* getLayerList() override;
    IZelLayerInfo* getLayersInfo() override;
    TZelObjectMgr<IZelZelObjectDefinition>* getObjectDefinitions() override;
    void readDataBlocks(CZelStream* stream, CZelExtStorage* storage) override;
    void clearGeometryBlocks() override;
    int write(CZelStream* stream, const CZelVersion* version) override;
    int readMediaInfo(CZelStream* stream) override;

    // ---- CZelMgrEx
    CZelHeliodonOpt* getHeliodonOpt() override;
    CZelRenderingOpt* getRenderingOpt() override;
    IZelViewOpt* getPerspectiveRenderingOpt() override;
    CZelPanoramaRenderingOpt* getVRRenderingOpt() override;
    IZelViewOpt* getAnimationRenderingOpt() override;
    IZelViewOpt* getViewObjectRenderingOpt() override;
    TZelObjectMgr<IZelAnimation>* getAnimations() override;
    TZelObjectMgr<IZelPanorama>* getPanoramas() override;
    const double* getTransform() override;
    void setTransform(const double* matrix) override;
    TZelObjectMgr<IZelBBMgrData>* getBillboards() override;
    IZelInsertionObject* getInsertionObject() override;
    TZelObjectMgr<IZelParallelView>* getParallelViewsList() override;
    CZelRenderingOpt* getParallelRenderingOpt() override;
    int readShader(CZelProperty* property, CZelStream* stream) override;
    int writeShader(CZelProperty* property, CZelStream* stream) override;
    IZelViewOpt* getVRViewOptions() override;
    IZelViewOpt* getParallelViewOptions() override;
    TZelObjectMgr<IZelParallelView>* getWorkingWindows() override;
    CZelProperty* newShader() override;
    void removeShader(CZelProperty* property) override;
    bool isBefore202() override;

    // ---- IXMLCDataReader: decodes a data block as the parser meets it.
    bool Read(KestraXML::XIXMLElement* element, KestraXML::CXMLReadStream* stream,
              KestraXML::CXMLParser* parser) override;

    // ---- Internal API for the entities, the codec and the block readers.
    CZelMgr* asMgr() { return static_cast<CZelMgr*>(this); }
    // Every owner in the scene answers getZel(); the manager is its own.
    CZEL* getZel() const { return const_cast<CZEL*>(this); }
    CZelFeedback* getFeedback() const { return mFeedback; }
    CZelExtStorage* getExtStorage() const { return mExtStorage; }
    // Passes a warning or an error to the feedback, with this manager; silent without one.
    void report(const char* text);
    void reportFormat(const char* format, ...);
    // "Exception in %s : %s" for a standard exception, "Unknown exception in %s" else.
    void reportException(const char* where, const char* what);

    bool isOldClient() const { return mOldClient; }
    bool isConverting() const { return mConverting; }
    bool hasTransform() const { return mHasTransform; }
    CAxisState axisState() const {
        CAxisState s = {mOldClient, mConverting, mHasTransform, mTransform};
        return s;
    }
    void importPoint(double& x, double& y, double& z) const { AxisImport(axisState(), x, y, z); }
    void importPoint(CZelVector& v) const { AxisImport(axisState(), v.x, v.y, v.z); }
    void importDirection(CZelVector& v) const { AxisImportDirection(axisState(), v.x, v.y, v.z); }
    void exportPoint(CZelVector& v) const { AxisExport(mOldClient, v.x, v.y, v.z); }

    int getClientVersion() const { return mClientVersion; }
    // Set while a file older than 2.0.0, legacy text or a legacy shader is read.
    void setConverting(bool converting) { mConverting = converting; }

    // The document of the last file read (or the fresh one), and its file node.
    KestraXML::XCXMLTree* getTree() const { return mTree; }
    KestraXML::XIXMLElement* getFileNode() const { return mFileNode; }
    // Whether the document holding `node` was written by the host application itself.
    bool isVantoriumFile(const KestraXML::XIXMLNode* node) const;
    // Whether the document was written by the host application itself.
    bool isVantoriumFile() const;
    // The plain progress report; throws "Operation cancelled" when the host says so.
    void reportProgress(int current, int total);

    CZelImage& previewImage() { return mPreviewImage; }
    CZelGeometry& geometry() { return *mGeometry; }
    CZelSceneContent& scene() { return *mScene; }
    TObjectMgr<CZelImage, IZelImage>& images() { return mImages; }

private:
    // Starts a fresh document: the three instructions and the file node with its four
    // first elements.
    void makeTree();
    void deleteTree();
    // Reads the XML family; raises on failure.
    int readXML(CZelStream* stream, unsigned int start);
    void rebuildImages();
    void refreshInstructions(const CZelVersion* version);
    void fixModelInstances();
    // The legacy branch: the .opt file (fills mDbName) and the .db file beside it.
    void readOptionFile(CTokenReader& reader);
    void readDbFile(CTokenReader& reader);
    // Conversion passes that lift older files into today's model.
    void convertOldSceneSettings();
    void fixSunLight();
    void convertOldViewSettings();
    void convertLegacyOptions();
    // Gives a fresh or read Points (or Polygons) element its block provider.
    void attachGeometryBlock(KestraXML::XIXMLElement* element, bool points);
    // Decodes a Points (or Polygons) data block into the scene, or into the storage.
    void readGeometryBlock(KestraXML::XIXMLElement* element, KestraXML::CXMLReadStream* stream, bool points);
    // The guarded body of the accessors of the document.
    template <class R, class F> R guarded(const char* where, R empty, F body);

protected:
    // Version facts of the file read, and the flags that follow from them.
    int mLegacyLevel[2];
    int mFileVersion[2];
    bool mOldClient;
    std::string mDbName;
    int mLegacyCurrentFlags;
    CZelVersion mVersion;
    int mClientVersion;
    CZelFeedback* mFeedback;
    CZelExtStorage* mExtStorage;
    std::string mApplicationName;
    std::string mApplicationVersion;
    double mTransform[16];
    bool mHasTransform;
    bool mConverting;
    unsigned short mLanguageCode;
    char mLanguage[3];
    bool mReadingVantoriumMaterials;
    bool mBefore202;
    bool mSkipDataBlocks;

    KestraXML::XCXMLTree* mTree;
    KestraXML::XIXMLElement* mFileNode;
    KestraXML::XIXMLPI* mApplicationNode;
    KestraXML::XIXMLPI* mZelNode;
    CZelImage mPreviewImage;
    TObjectMgr<CZelImage, IZelImage> mImages;
    std::unique_ptr<CZelGeometry, CZelGeometryDeleter> mGeometry;
    std::unique_ptr<CZelSceneContent> mScene;
};

} // namespace KeZel
