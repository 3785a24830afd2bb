// Parallel views: views without perspective (a front view, a plan, an axonometry). The
// scene keeps two lists of them: its parallel views and its working windows.
#pragma once

#include "frame/ObjectLists.h"
#include "model/views/IZelParallelView.h"
#include "model/views/RenderingOpt.h"
#include "model/views/ViewInfo.h"

#include <string>

namespace KeZel {

class CZelParallelView;
typedef TObjectMgr<CZelParallelView, IZelParallelView> CParallelViewList;

// No setter checks its value.
class CZelParallelView : public TZelFrontier<IZelParallelView> {
public:
    // A plan. Raises "Can't create UUID" when its view info can get no identity.
    explicit CZelParallelView(CZEL* zel = nullptr);
    explicit CZelParallelView(CParallelViewList* list) : CZelParallelView(list ? list->getZel() : nullptr) {}

    const char* getName() const override { return mName.c_str(); }
    void setName(const char* name) override { mName = name ? name : ""; }
    int getType() const override { return mType; }
    void setType(int type) override { mType = type; }
    int getViewFlags() const override { return mViewFlags; }
    void setViewFlags(int flags) override { mViewFlags = flags; }
    double getNorthAngle() const override { return mNorthAngle; }
    void setNorthAngle(double angle) override { mNorthAngle = angle; }
    double getSize() const override { return mSize; }
    void setSize(double size) override { mSize = size; }
    const CZelVector* getPosition() const override { return &mPosition; }
    void setPosition(const CZelVector& position) override { mPosition = position; }
    const CZelVector* getTarget() const override { return &mTarget; }
    void setTarget(const CZelVector& target) override { mTarget = target; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's Parallel.View.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    const IZelViewInfo* getViewInfo() const override { return &mViewInfo; }
    IZelViewInfo* getViewInfo() override { return &mViewInfo; }
    const IZelParallelViewsOpt* getViewOpt() const override { return &mViewOpt; }
    IZelParallelViewsOpt* getViewOpt() override { return &mViewOpt; }
    bool isSpecialShading() const override { return mSpecialShading; }
    void setSpecialShading(bool on) override { mSpecialShading = on; }

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    CZelViewInfo& viewInfo() { return mViewInfo; }
    const CZelViewInfo& viewInfo() const { return mViewInfo; }
    CParallelViewRenderingOpt& viewOpt() { return mViewOpt; }
    const CParallelViewRenderingOpt& viewOpt() const { return mViewOpt; }

private:
    CZEL* mZel;
    CZelViewInfo mViewInfo;
    std::string mName;
    int mType;
    int mViewFlags;
    double mNorthAngle;
    double mSize;
    CZelVector mPosition;
    CZelVector mTarget;
    CParallelViewRenderingOpt mViewOpt;
    bool mSpecialShading;
};

} // namespace KeZel
