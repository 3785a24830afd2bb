// CZEL: the one implementation of CZelMgr and CZelMgrEx, and the decoder of the XML data
// blocks of a scene. Every entity keeps a plain pointer to its CZEL to reach the feedback
// and the version flags through the internal API at the end of this class.
#pragma once

#include "frame/AxisRule.h"
#include "frame/ZelFrontier.h"
#include "frame/ZelMgr.h"
#include "xml/XMLParser.h"

#include <string>

namespace KeZel {

class CZelScene; // the scene's content, owned by the manager

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
};

} // namespace KeZel
