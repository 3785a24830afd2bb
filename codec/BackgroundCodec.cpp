#include "codec/BackgroundCodec.h"

#include "codec/PropertyCodec.h"
#include "codec/SkyCodec.h"
#include "frame/CZEL.h"

namespace KeZel {

using KestraXML::XIXMLElement;

XIXMLElement* ZelFindBackground(const XIXMLElement* parent) {
    XIXMLElement* e = CZelXMLIO::find(parent, "Backgroung");
    return e ? e : CZelXMLIO::find(parent, "Background");
}

XIXMLElement* ZelAddBackground(const CZelXMLIO& io, XIXMLElement* parent, const CBackground& b) {
    CZelXMLIO::removeAll(parent, "Backgroung");
    XIXMLElement* e = CZelXMLIO::replace(parent, "Background");
    io.putLabel(e, "Image.Type", kBackgroundImageTypeLabels, b.getImageType());
    io.putLabel(e, "Color.Type", kBackgroundColorTypeLabels, b.getColorType());
    io.putColor(e, "Color", b.getColor());
    io.putColor(e, "Second.Color", b.getSecondColor());
    io.putVector(e, "Up.Direction", *b.getUpDirection());
    io.putDouble(e, "Line.Power", b.getLinePower());
    io.putString(e, "URL", b.getURL());
    io.putDouble(e, "Origin.Obsolete", b.getOriginObsolete());
    io.putDouble(e, "Origin", b.getOrigin());
    io.putFlag(e, "Use.Default", b.isUseDefault());
    io.putDouble(e, "Direction.Angle", b.getDirectionAngle());
    io.putUUID(e, "Id", *b.getId());
    return e;
}

void ZelGetBackground(const CZelXMLIO& io, const XIXMLElement* e, CBackground& b) {
    Kestra::XAssertPointer(e);
    b.setImageType(io.getLabel(e, "Image.Type", kBackgroundImageTypeLabels));
    b.setColorType(io.getLabel(e, "Color.Type", kBackgroundColorTypeLabels));
    b.setColor(io.getColor(e, "Color"));
    b.setSecondColor(io.getColor(e, "Second.Color"));
    b.setUpDirection(io.getVector(e, "Up.Direction"));
    b.setLinePower(io.getDouble(e, "Line.Power"));
    b.setURL(io.getString(e, "URL").c_str());
    double value;
    if (io.findDouble(e, "Origin.Obsolete", value)) b.setOriginObsolete(value);
    b.setOrigin(io.getDouble(e, "Origin"));
    b.setUseDefault(io.getFlag(e, "Use.Default"));
    if (io.findDouble(e, "Direction.Angle", value)) b.setDirectionAngle(value);
    CZelUUID id;
    if (io.findUUID(e, "Id", id)) b.setId(id);
}

void ZelGetBackgroundShort(const CZelXMLIO& io, const XIXMLElement* e, CBackground& b) {
    Kestra::XAssertPointer(e);
    b.setImageType(io.getLabel(e, "Image.Type", kBackgroundImageTypeLabels));
    b.setColorType(io.getLabel(e, "Color.Type", kBackgroundColorTypeLabels));
    b.setColor(io.getColor(e, "Color"));
    CZelColor second;
    if (io.findColor(e, "Second.Color", second)) b.setSecondColor(second);
    b.setURL(io.getString(e, "URL").c_str());
}

XIXMLElement* ZelAddBackgroundPicture(const CZelXMLIO& io, XIXMLElement* parent,
                                      const CZelBackgroundPicture& p) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Background.Picture");
    io.putLabel(e, "Type", kBackgroundPictureTypeLabels, p.getType());
    io.putString(e, "URL", p.getURL());
    io.putColor(e, "First.Color", p.getFirstColor());
    io.putColor(e, "Second.Color", p.getSecondColor());
    io.putColor(e, "Third.Color", p.getThirdColor());
    io.putFlag(e, "3D", p.is3D());
    io.putDouble(e, "H.Offset", p.getHOffset());
    io.putDouble(e, "V.Offset", p.getVOffset());
    return e;
}

void ZelGetBackgroundPicture(const CZelXMLIO& io, const XIXMLElement* e, CZelBackgroundPicture& p) {
    p.setURL(io.getString(e, "URL").c_str());
    p.setFirstColor(io.getColor(e, "First.Color"));
    p.setSecondColor(io.getColor(e, "Second.Color"));
    p.setThirdColor(io.getColor(e, "Third.Color"));
    p.set3D(io.getFlag(e, "3D"));
    p.setType(io.getLabel(e, "Type", kBackgroundPictureTypeLabels));
    p.setHOffset(io.getDouble(e, "H.Offset"));
    p.setVOffset(io.getDouble(e, "V.Offset"));
}

XIXMLElement* ZelAddForeground(const CZelXMLIO& io, XIXMLElement* parent, const CZelForeground& f) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Foregroung");
    io.putString(e, "URL", f.getURL());
    io.putInt(e, "Position.X", f.getPositionX());
    io.putInt(e, "Position.Y", f.getPositionY());
    io.putUUID(e, "Id", *f.getId());
    return e;
}

void ZelGetForeground(const CZelXMLIO& io, const XIXMLElement* e, CZelForeground& f) {
    f.setURL(io.getString(e, "URL").c_str());
    f.setPositionX(io.getInt(e, "Position.X"));
    f.setPositionY(io.getInt(e, "Position.Y"));
    CZelUUID id;
    if (io.findUUID(e, "Id", id)) f.setId(id);
}

XIXMLElement* ZelAddEnvironment(const CZelXMLIO& io, XIXMLElement* parent, const CZelEnvironment& env) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Environment");
    io.putUUID(e, "UUID", *env.getUUID());
    io.putString(e, "Name", env.getName());
    ZelAddFog(io, e, env.fog());
    ZelAddClouds(io, e, env.clouds());
    ZelAddBackgroundPicture(io, e, env.backgroundPicture());
    ZelAddForeground(io, e, env.foreground());
    return e;
}

void ZelGetEnvironment(const CZelXMLIO& io, const XIXMLElement* e, CZelEnvironment& env) {
    env.setUUID(io.getUUID(e, "UUID"));
    env.setName(io.getString(e, "Name").c_str());
    if (const XIXMLElement* fog = CZelXMLIO::find(e, "Fog")) ZelGetFog(io, fog, env.fog());
    if (const XIXMLElement* clouds = CZelXMLIO::find(e, "Clouds")) ZelGetClouds(io, clouds, env.clouds());
    if (const XIXMLElement* picture = CZelXMLIO::find(e, "Background.Picture"))
        ZelGetBackgroundPicture(io, picture, env.backgroundPicture());
    if (const XIXMLElement* foreground = CZelXMLIO::find(e, "Foregroung"))
        ZelGetForeground(io, foreground, env.foreground());
}

XIXMLElement* ZelAddGround(const CZelXMLIO& io, XIXMLElement* parent, const CZelGround& g) {
    XIXMLElement* e = CZelXMLIO::add(parent, "Ground");
    io.putFlag(e, "Active", g.isActive());
    io.putDouble(e, "Height", g.getHeight());
    ZelAddProperty(io, e, g.property());
    return e;
}

void ZelGetGround(const CZelXMLIO& io, const XIXMLElement* e, CZelGround& g) {
    g.setActive(io.getFlag(e, "Active"));
    g.setHeight(io.getDouble(e, "Height"));
    const XIXMLElement* property = CZelXMLIO::find(e, "Property");
    if (!property) Kestra::XThrow("CZelXMLIO::GetGround : no property!");
    ZelGetProperty(io, property, g.property());
}

XIXMLElement* ZelPutBackground(const CZelXMLIO& io, XIXMLElement* fileNode, const CBackground& background) {
    return ZelAddBackground(io, fileNode, background);
}

void ZelGetSceneBackground(const CZelXMLIO& io, const XIXMLElement* fileNode, CBackground& background) {
    ZelGetBackground(io, ZelFindBackground(fileNode), background);
}

XIXMLElement* ZelPutEnvironments(const CZelXMLIO& io, XIXMLElement* parent, CEnvironmentList& environments) {
    return io.putList(
        parent, "Environments", "Environment", environments,
        [&](XIXMLElement* outer, const CZelEnvironment& env) { ZelAddEnvironment(io, outer, env); });
}

bool ZelGetEnvironments(const CZelXMLIO& io, const XIXMLElement* parent, CEnvironmentList& environments) {
    return io.getList(parent, "Environments", "Environment", environments,
                      [&](const XIXMLElement* e, CZelEnvironment& env) { ZelGetEnvironment(io, e, env); });
}

XIXMLElement* ZelPutGrounds(const CZelXMLIO& io, XIXMLElement* fileNode, CGroundList& grounds) {
    return io.putList(fileNode, "Grounds", "Ground", grounds,
                      [&](XIXMLElement* outer, const CZelGround& g) { ZelAddGround(io, outer, g); });
}

bool ZelGetGrounds(const CZelXMLIO& io, const XIXMLElement* fileNode, CGroundList& grounds) {
    return io.getList(fileNode, "Grounds", "Ground", grounds,
                      [&](const XIXMLElement* e, CZelGround& g) { ZelGetGround(io, e, g); });
}

} // namespace KeZel
