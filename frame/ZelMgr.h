// The scene manager: root of the public object model. One instance is one scene.
// Public header, C++11. Slot order is part of the interface.
#ifndef ZEL_FRAME_ZELMGR_H
#define ZEL_FRAME_ZELMGR_H

#include "foundation/Visibility.h"
#include "frame/ZelObjectMgr.h"
#include "frame/ZelStream.h"
#include "frame/ZelTypes.h"

namespace KestraXML {
class XIXMLElement;
}

namespace KeZel {

class CZelMgrEx;
class IZelImage;
// Geometry and materials
class CZelPolygon;
class CZelProperty;
// Light and sky
class CZelAmbient;
class CZelAtmosphere;
class CZelBackground;
class CZelLight;
class IZelLightsGroup;
class CZelHeliodon;
class CZelHeliodonOpt;
class IZelEnvironment;
class IZelGround;
// Views and rendering
class CZelCamera;
class CZelViewObject;
class IZelParallelView;
class IZelCameraPath;
class IZelPanoNode;
class CZelPanoLink;
class IZelAnimation;
class IZelPanorama;
class CZelRenderingOpt;
class IZelViewOpt;
class CZelPanoramaRenderingOpt;
// Objects
class IZelZelObjectDefinition;
class IZelObjectInstance;
class IZelBBMgrData;
class IZelInsertionObject;
class IZelLayer;
class IZelLayerInfo;
// Scenario animation
class IZelScenario;
class CZel3DPath;

class ZEL_API CZelMgr {
public:
    virtual void destroy() = 0;
    virtual void setApplicationInfo(const char* name, const char* version) = 0;
    virtual CZelMgrEx* getMgrEx(int version) = 0;
    virtual const CZelVersion* getVersion() = 0;
    // 0 on success, 1 on failure; details go to the feedback.
    virtual int read(CZelStream* stream) = 0;
    // 0 on success, 2 on failure.
    virtual int write(CZelStream* stream) = 0;
    virtual bool getFileVersion(int* major, int* minor) = 0;
    virtual CZelAmbient* getAmbient() = 0;
    virtual CZelAtmosphere* getAtmosphere() = 0;
    virtual CZelBackground* getBackground() = 0;
    virtual TZelObjectMgr<CZelCamera>* getCameras() = 0;
    virtual TZelObjectMgr<CZelPolygon>* getPolygons() = 0;
    virtual TZelObjectMgr<CZelVector>* getPoints() = 0;
    virtual TZelObjectMgr<CZelProperty>* getProperties() = 0;
    virtual TZelObjectMgr<CZelLight>* getLights() = 0;
    virtual TZelObjectMgr<IZelCameraPath>* getFirstAnimationPaths() = 0;
    virtual TZelObjectMgr<IZelPanoNode>* getFirstPanoramaNodes() = 0;
    virtual TZelObjectMgr<CZelPanoLink>* getFirstPanoramaLinks() = 0;
    virtual TZelObjectMgr<CZelViewObject>* getViewObjects() = 0;
    virtual CZelHeliodon* getHeliodon() = 0;
    virtual TZelObjectMgr<IZelParallelView>* getParallelViews() = 0;
    virtual TZelObjectMgr<CZelHeliodon>* getHeliodons() = 0;
    virtual TZelObjectMgr<IZelLightsGroup>* getLightsGroups() = 0;
    virtual IZelImage* getPreviewImage() = 0;
    virtual TZelObjectMgr<IZelImage>* getImages() = 0;
    virtual IZelZelObjectDefinition* getObjectDefinition() = 0;
    virtual TZelObjectMgr<IZelObjectInstance>* getObjectInstances() = 0;
    virtual const char* getLanguage() = 0;
    virtual void setLanguage(const char* code) = 0;
    virtual const char* getComment(int index) = 0;
    virtual int setComment(const char* text, int index) = 0;
    virtual const char* getURL() = 0;
    virtual void setURL(const char* url) = 0;
    virtual KestraXML::XIXMLElement* getApplicationData(const char* tag) = 0;
    virtual TZelObjectMgr<IZelScenario>* getScenarios() = 0;
    virtual TZelObjectMgr<CZel3DPath>* get3DPaths() = 0;
    virtual TZelObjectMgr<IZelEnvironment>* getEnvironments() = 0;
    virtual TZelObjectMgr<IZelGround>* getGrounds() = 0;
    virtual TZelObjectMgr<IZelLayer>* getLayers() = 0;
    virtual TZelObjectMgr<IZelLayer>* getLayerList() = 0;
    virtual IZelLayerInfo* getLayersInfo() = 0;
    virtual TZelObjectMgr<IZelZelObjectDefinition>* getObjectDefinitions() = 0;
    virtual void readDataBlocks(CZelStream* stream, CZelExtStorage* storage) = 0;
    virtual void clearGeometryBlocks() = 0;
    // `version`, when given, replaces min_version and safe_version of the file.
    virtual int write(CZelStream* stream, const CZelVersion* version) = 0;
    virtual int readMediaInfo(CZelStream* stream) = 0;
    virtual ~CZelMgr() {}

    // The library's surface; the C entry points of zel.h forward to these.
    static bool checkFormat(CZelStream* stream, char* creator, int creatorSize);
    static bool checkFormat2(CZelStream* stream, eReadability* readability, CZelVersion* version,
                             char* creator, int creatorSize);
    static void doImportReference(CZelMgr* target, CZelMgr* source, int mode);
    static EVersionZEL getZELVersion();
    static EExtendedVersionZEL getExtendedZelVersion();
    static const CZelFileType* const* getFileTypeList();
    static IZelImage* readPreviewImage(CZelStream* stream);

private:
    static CZelMgr* newCZelMgr(EVersionZEL version, CZelFeedback* feedback, CZelExtStorage* storage);
    friend CZelMgr* ZelNewMgr(EVersionZEL, CZelFeedback*, CZelExtStorage*);
};

class ZEL_API CZelMgrEx {
public:
    virtual CZelHeliodonOpt* getHeliodonOpt() = 0;
    virtual CZelRenderingOpt* getRenderingOpt() = 0;
    virtual IZelViewOpt* getPerspectiveRenderingOpt() = 0;
    virtual CZelPanoramaRenderingOpt* getVRRenderingOpt() = 0;
    virtual IZelViewOpt* getAnimationRenderingOpt() = 0;
    virtual IZelViewOpt* getViewObjectRenderingOpt() = 0;
    virtual TZelObjectMgr<IZelAnimation>* getAnimations() = 0;
    virtual TZelObjectMgr<IZelPanorama>* getPanoramas() = 0;
    virtual const double* getTransform() = 0;
    virtual void setTransform(const double* matrix) = 0;
    virtual TZelObjectMgr<IZelBBMgrData>* getBillboards() = 0;
    virtual IZelInsertionObject* getInsertionObject() = 0;
    virtual TZelObjectMgr<IZelParallelView>* getParallelViewsList() = 0;
    virtual CZelRenderingOpt* getParallelRenderingOpt() = 0;
    // 0 on success, 1 on failure.
    virtual int readShader(CZelProperty* property, CZelStream* stream) = 0;
    // 0 on success, 2 on failure.
    virtual int writeShader(CZelProperty* property, CZelStream* stream) = 0;
    virtual IZelViewOpt* getVRViewOptions() = 0;
    virtual IZelViewOpt* getParallelViewOptions() = 0;
    virtual TZelObjectMgr<IZelParallelView>* getWorkingWindows() = 0;
    virtual CZelProperty* newShader() = 0;
    virtual void removeShader(CZelProperty* property) = 0;
    virtual bool isBefore202() = 0;
    virtual ~CZelMgrEx() {}
};

} // namespace KeZel

#endif
