#include "codec/RenderingCodec.h"

#include "frame/CZEL.h"
#include "model/views/RenderingOpt.h"

namespace KeZel {

using KestraXML::XIXMLElement;

XIXMLElement* ZelAddRendering(const CZelXMLIO& io, XIXMLElement* parent, const CRenderingOpt& o) {
    // The tree outlives a write: a second write replaces the Rendering of the first.
    XIXMLElement* e = CZelXMLIO::replace(CZelXMLIO::findOrAdd(parent, "Options"), "Rendering");
    io.putFlag(e, "Raytracing", o.isRaytracing());
    io.putFlag(e, "Shadow", o.isShadow());
    io.putFlag(e, "Transparency", o.isTransparency());
    io.putInt(e, "Nb.Reflections", o.getNbReflection());
    io.putInt(e, "Nb.Refractions", o.getNbRefraction());
    io.putInt(e, "Height", o.getHeight());
    io.putInt(e, "Width", o.getWidth());
    io.putLabel(e, "Antialias", kAntialiasLabels, o.getAntialias());
    io.putLabel(e, "Output.Type", kOutputTypeLabels, o.getOutputType());
    io.putFlag(e, "Alpha", o.isAlpha());
    io.putFlag(e, "Render.All", o.isRenderAll());
    io.putInt(e, "Render.First", o.getRenderFirst());
    io.putInt(e, "Render.Last", o.getRenderLast());
    if (o.hasUrl()) io.putString(e, "URL", o.getUrl());
    io.putFlag(e, "Use.View.Options", o.isUseViewOptions());
    io.putFlag(e, "Preview.Antialias", o.isPreviewAntialias());
    io.putFlag(e, "Height.Width.Linked", o.isHeightWidthLinked());
    io.putFlag(e, "Scale.On", o.isScaleOn());
    io.putInt(e, "Scale", o.getParallelScale());
    io.putInt(e, "Resolution", o.getImageResolution());
    io.putInt(e, "Resolution.Level", o.getPanoramaResolution());
    io.putFlag(e, "Radiosity", o.isRadiosity());
    io.putDouble(e, "Radiosity.Factor", o.getRadiosityFactor());
    io.putDouble(e, "Radiosity.Quality", o.getRadiosityQuality());
    io.putDouble(e, "Contrast", o.getContrast());
    io.putDouble(e, "Luminosity", o.getLuminosity());
    io.putDouble(e, "Long.Range", o.getLongRange());
    io.putDouble(e, "Short.Range", o.getShortRange());
    io.putDouble(e, "First.Bounce", o.getFirstBounce());
    io.putDouble(e, "Next.Bounces", o.getNextBounces());
    io.putDouble(e, "Attenuation", o.getAttenuation());
    io.putDouble(e, "ColorBleeding", o.getColorBleeding());
    return e;
}

void ZelGetRendering(const CZelXMLIO& io, const XIXMLElement* e, CRenderingOpt& o) {
    if (ZelIsOldForeignFile(io, e)) {
        o.setRaytracing(true);
        o.setShadow(true);
        o.setTransparency(true);
    } else {
        o.setRaytracing(io.getFlag(e, "Raytracing"));
        o.setShadow(io.getFlag(e, "Shadow"));
        o.setTransparency(io.getFlag(e, "Transparency"));
    }
    o.setNbReflection(io.getInt(e, "Nb.Reflections"));
    o.setNbRefraction(io.getInt(e, "Nb.Refractions"));
    o.setHeight(io.getInt(e, "Height"));
    o.setWidth(io.getInt(e, "Width"));
    o.setAntialias(io.getLabel(e, "Antialias", kAntialiasLabels));
    o.setOutputType(io.getLabel(e, "Output.Type", kOutputTypeLabels));
    o.setAlpha(io.getFlag(e, "Alpha"));
    o.setRenderAll(io.getFlag(e, "Render.All"));
    o.setRenderFirst(io.getInt(e, "Render.First"));
    o.setRenderLast(io.getInt(e, "Render.Last"));
    if (const char* url = CZelXMLIO::textOf(CZelXMLIO::find(e, "URL"))) o.setUrl(url);
    o.setUseViewOptions(io.getFlag(e, "Use.View.Options"));
    o.setPreviewAntialias(io.getFlag(e, "Preview.Antialias"));
    o.setHeightWidthLinked(io.getFlag(e, "Height.Width.Linked"));
    // Files of older libraries stop before one of these three groups.
    if (CZelXMLIO::find(e, "Scale")) {
        o.setScaleOn(io.getFlag(e, "Scale.On"));
        o.setParallelScale(io.getInt(e, "Scale"));
        o.setImageResolution(io.getInt(e, "Resolution"));
        o.setPanoramaResolution(io.getInt(e, "Resolution.Level"));
    }
    if (CZelXMLIO::find(e, "Contrast")) {
        o.setRadiosity(io.getFlag(e, "Radiosity"));
        o.setRadiosityFactor(io.getDouble(e, "Radiosity.Factor"));
        o.setRadiosityQuality(io.getDouble(e, "Radiosity.Quality"));
        o.setContrast(io.getDouble(e, "Contrast"));
        o.setLuminosity(io.getDouble(e, "Luminosity"));
    }
    if (CZelXMLIO::find(e, "Long.Range")) {
        o.setLongRange(io.getDouble(e, "Long.Range"));
        o.setShortRange(io.getDouble(e, "Short.Range"));
        o.setFirstBounce(io.getDouble(e, "First.Bounce"));
        o.setNextBounces(io.getDouble(e, "Next.Bounces"));
        o.setAttenuation(io.getDouble(e, "Attenuation"));
        o.setColorBleeding(io.getDouble(e, "ColorBleeding"));
    }
}

XIXMLElement* ZelAddCompression(const CZelXMLIO& io, XIXMLElement* parent, const CCompressionOpt& o) {
    XIXMLElement* e = CZelXMLIO::replace(CZelXMLIO::findOrAdd(parent, "Options"), "Compression");
    io.putInt(e, "Codec", o.getCodec());
    io.putInt(e, "Depth", o.getDepth());
    io.putInt(e, "Spacial.Quality", o.getSpatialQuality());
    io.putInt(e, "Temporal.Quality", o.getTemporalQuality());
    io.putDouble(e, "Frame.Rate", o.getFrameRate());
    io.putInt(e, "Key.Frame.Rate", o.getKeyFrameRate());
    return e;
}

void ZelGetCompression(const CZelXMLIO& io, const XIXMLElement* e, CCompressionOpt& o) {
    o.setCodec(io.getInt(e, "Codec"));
    o.setDepth(io.getInt(e, "Depth"));
    o.setSpatialQuality(io.getInt(e, "Spacial.Quality"));
    o.setTemporalQuality(io.getInt(e, "Temporal.Quality"));
    o.setFrameRate(io.getDouble(e, "Frame.Rate"));
    o.setKeyFrameRate(io.getInt(e, "Key.Frame.Rate"));
}

XIXMLElement* ZelAddViewOpt(const CZelXMLIO& io, XIXMLElement* parent, const CAnimRenderingOpt& o) {
    ZelAddRendering(io, parent, o.rendering());
    ZelAddCompression(io, parent, o.compression());
    return CZelXMLIO::need(parent, "Options");
}

void ZelGetViewOpt(const CZelXMLIO& io, const XIXMLElement* options, CAnimRenderingOpt& o) {
    ZelGetRendering(io, CZelXMLIO::need(options, "Rendering"), o.rendering());
    ZelGetCompression(io, CZelXMLIO::need(options, "Compression"), o.compression());
    if (CZelXMLIO::find(options, "Scale")) {
        CRenderingOpt& r = o.rendering();
        r.setScaleOn(io.getFlag(options, "Scale.On"));
        r.setParallelScale(io.getInt(options, "Scale"));
        r.setImageResolution(io.getInt(options, "Resolution"));
        int level;
        if (io.findInt(options, "Resolution.Level", level)) r.setPanoramaResolution(level);
    }
}

XIXMLElement* ZelPutPreview(const CZelXMLIO& io, XIXMLElement* fileNode, const CRenderingOpt& o) {
    XIXMLElement* preview = CZelXMLIO::replace(fileNode, "Preview");
    ZelAddRendering(io, preview, o);
    return preview;
}

bool ZelGetPreview(const CZelXMLIO& io, const XIXMLElement* fileNode, CRenderingOpt& o) {
    const XIXMLElement* preview = CZelXMLIO::find(fileNode, "Preview");
    if (!preview) return false;
    ZelGetRendering(io, CZelXMLIO::need(CZelXMLIO::need(preview, "Options"), "Rendering"), o);
    return true;
}

bool ZelIsOldForeignFile(const CZelXMLIO& io, const XIXMLElement* node) {
    return io.mZel->isConverting() && !io.mZel->isVantoriumFile(node->AsNode());
}

} // namespace KeZel
