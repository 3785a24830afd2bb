// The insertion object of a perspective view: the state of the tool that aligns a model
// on a picture (axis lines, perspective tool, reference positions). It also stands once
// at the scene's level, where older files kept it.
#pragma once

#include "frame/ZelFrontier.h"
#include "model/objects/IZelLayer.h"

namespace KeZel {

class CZEL;

class CZelInsertionObject : public TZelFrontier<IZelInsertionObject> {
public:
    enum { kPositions = 4 };

    // Everything at zero or false. Index reports go to the manager's feedback, when there
    // is a manager.
    explicit CZelInsertionObject(CZEL* zel = nullptr);

    bool isActive() const override { return mActive; }
    void setActive(bool active) override { mActive = active; }
    const CZelVector2D* getAxesPosition(unsigned int index) const override;
    void setAxesPosition(unsigned int index, const CZelVector2D& position) override;
    const CZelVector2D* getPerpectiveToolPosition(unsigned int index) const override;
    void setPerpectiveToolPosition(unsigned int index, const CZelVector2D& position) override;
    const CZelVector* getReperePosition(unsigned int index) const override;
    void setReperePosition(unsigned int index, const CZelVector& position) override;
    int getSizeAxis() const override { return mSizeAxis; }
    void setSizeAxis(int axis) override { mSizeAxis = axis; }
    bool isAxesVisible() const override { return mAxesVisible; }
    void setAxesVisible(bool visible) override { mAxesVisible = visible; }
    bool isModelVisible() const override { return mModelVisible; }
    void setModelVisible(bool visible) override { mModelVisible = visible; }
    bool isPerpectiveToolVisible() const override { return mPerpectiveToolVisible; }
    void setPerpectiveToolVisible(bool visible) override { mPerpectiveToolVisible = visible; }
    KestraXML::XIXMLElement* putInXML(KestraXML::XIXMLElement* parent) override;
    // Reads parent's InsertionObject.
    bool initWithXML(KestraXML::XIXMLElement* parent) override;
    bool isYAxeInverted() const override { return mYAxeInverted; }
    void setYAxeInverted(bool inverted) override { mYAxeInverted = inverted; }

    // ---- Internal API
    CZEL* getZel() const { return mZel; }
    void setZel(CZEL* zel) { mZel = zel; }
    // Takes the three sets of positions of `other`, nothing else.
    void copyPositionsFrom(const CZelInsertionObject& other);

private:
    // False, with `report` sent, for an index past the last position.
    bool checkIndex(unsigned int index, const char* report) const;

    CZEL* mZel;
    bool mActive;
    CZelVector2D mAxesPositions[kPositions];
    CZelVector2D mPerpectiveToolPositions[kPositions];
    CZelVector mReperePositions[kPositions];
    int mSizeAxis;
    bool mAxesVisible;
    bool mModelVisible;
    bool mPerpectiveToolVisible;
    bool mYAxeInverted;
};

} // namespace KeZel
