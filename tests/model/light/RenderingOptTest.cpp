#include "LightFixture.h"

#include "codec/RenderingCodec.h"
#include "model/views/RenderingOpt.h"

#include <functional>

using namespace KeZel;
using LightTest::Fixture;

TEST(RenderingOpt, SettersClipAndWarnOnce) {
    struct Case {
        std::function<void(CRenderingOpt&, double)> set;
        std::function<double(const CRenderingOpt&)> get;
        double in, out;
        const char* warning;
    } cases[] = {
        {[](CRenderingOpt& o, double v) { o.setHeight(int(v)); },
         [](const CRenderingOpt& o) { return o.getHeight(); }, -5, 0,
         "class CRenderingOpt: Method setHeight has clipped a value out of range."},
        {[](CRenderingOpt& o, double v) { o.setRenderLast(int(v)); },
         [](const CRenderingOpt& o) { return o.getRenderLast(); }, -1, 0,
         "class CRenderingOpt: Method setRenderLast has clipped a value out of range."},
        {[](CRenderingOpt& o, double v) { o.setPanoramaResolution(int(v)); },
         [](const CRenderingOpt& o) { return o.getPanoramaResolution(); }, -9, 0,
         "class CRenderingOpt: Method setPanoramaResolution has clipped a value out of range."},
        {&CRenderingOpt::setRadiosityFactor, &CRenderingOpt::getRadiosityFactor, -1, 0,
         "class CRenderingOpt:Method setRadiosityFactor has clipped a value out of range."},
        {&CRenderingOpt::setRadiosityQuality, &CRenderingOpt::getRadiosityQuality, 3e9, 2147483647.0,
         "class CRenderingOpt: Method setRadiosityQuality has clipped a value out of range."},
        {&CRenderingOpt::setRadiosityQuality, &CRenderingOpt::getRadiosityQuality, -3, 0,
         "class CRenderingOpt: Method setRadiosityQuality has clipped a value out of range."},
        {&CRenderingOpt::setContrast, &CRenderingOpt::getContrast, -1, 0,
         "CRenderingOpt::setContrast value must be positive"},
        {&CRenderingOpt::setLuminosity, &CRenderingOpt::getLuminosity, 2, 1,
         "CRenderingOpt::setLuminosity value must be between -1 and 1."},
        {&CRenderingOpt::setLuminosity, &CRenderingOpt::getLuminosity, -2, -1,
         "CRenderingOpt::setLuminosity value must be between -1 and 1."},
    };
    for (const Case& c : cases) {
        Fixture f;
        CRenderingOpt owned(&f.zel), loose;
        c.set(owned, c.in);
        c.set(loose, c.in);
        EXPECT_EQ(c.get(owned), c.out) << c.warning;
        EXPECT_EQ(c.get(loose), c.out) << c.warning;
        ASSERT_EQ(f.feedback.count(), 1u) << c.warning;
        EXPECT_EQ(f.feedback.last(), c.warning);
        c.set(owned, 0);
        EXPECT_EQ(f.feedback.count(), 1u) << c.warning;
    }
    CRenderingOpt unbounded;
    unbounded.setRadiosityFactor(1e9);
    EXPECT_EQ(unbounded.getRadiosityFactor(), 1e9);
    CCompressionOpt compression;
    compression.setFrameRate(0.5);
    EXPECT_EQ(compression.getFrameRate(), 1.0);
    EXPECT_EQ(compression.getCodec(), 1918990112);
}

TEST(RenderingOpt, FamiliesStartFromTheirOwnDefaults) {
    CAnimRenderingOpt anim;
    EXPECT_EQ(anim.getRenderingOpt()->getOutputType(), 7);
    EXPECT_EQ(anim.getCompressionOpt()->getFrameRate(), 25.0);
    CParallelViewRenderingOpt parallel;
    EXPECT_EQ(parallel.getRenderingOpt()->getOutputType(), 5);
    EXPECT_EQ(parallel.getRenderingOpt()->getNbReflection(), 1);
    CVRRenderingOpt vr;
    EXPECT_EQ(vr.getRenderingOpt()->getOutputType(), 6);
    EXPECT_EQ(vr.getRenderingOpt()->getAntialias(), 2);
}

TEST(RenderingOpt, ViewOptionsReadBackAndOlderFormsKeepDefaults) {
    Fixture f;
    CAnimRenderingOpt options(&f.zel);
    CRenderingOpt& r = options.rendering();
    r.setShadow(false);
    r.setAlpha(true);
    r.setUrl("file:///out.mov");
    r.setAntialias(3);
    r.setScaleOn(false);
    r.setLuminosity(-0.5);
    r.setColorBleeding(0.25);
    options.compression().setCodec(42);
    KestraXML::XIXMLElement* view = f.fresh("View");
    ASSERT_NE(options.putInXML(view), nullptr);
    ASSERT_NE(options.putInXML(view), nullptr);
    std::string first = Fixture::text(view);
    EXPECT_EQ(CZelXMLIO::find(view, "Options")->GetElementCount(), 2u);

    CAnimRenderingOpt back(&f.zel);
    ASSERT_TRUE(back.initWithXML(view));
    EXPECT_FALSE(back.rendering().isShadow());
    EXPECT_TRUE(back.rendering().isAlpha());
    EXPECT_STREQ(back.rendering().getUrl(), "file:///out.mov");
    EXPECT_FALSE(back.rendering().isScaleOn());
    EXPECT_EQ(back.rendering().getLuminosity(), -0.5);
    EXPECT_EQ(back.compression().getCodec(), 42);
    KestraXML::XIXMLElement* again = f.fresh("View");
    back.putInXML(again);
    EXPECT_EQ(Fixture::text(again), first);

    // An old file: no radiosity, no ranges, the scale directly below Options.
    KestraXML::XIXMLElement* old = Fixture::parse(
        "<View><Options><Scale>30</Scale><Resolution>150</Resolution><Rendering Antialias=\"No\" "
        "Output.Type=\"JPEG\"><Nb.Reflections>1</Nb.Reflections><Nb.Refractions>1</Nb.Refractions>"
        "<Height>-5</Height><Width>10</Width><Render.First>0</Render.First><Render.Last>0</Render.Last>"
        "<Scale>20</Scale><Resolution>96</Resolution><Resolution.Level>3</Resolution.Level></Rendering>"
        "<Compression><Codec>1</Codec><Depth>2</Depth><Spacial.Quality>3</Spacial.Quality>"
        "<Temporal.Quality>4</Temporal.Quality><Frame.Rate>0</Frame.Rate><Key.Frame.Rate>5</Key.Frame.Rate>"
        "</Compression></Options></View>");
    CAnimRenderingOpt fromOld(&f.zel);
    f.feedback.clear();
    ASSERT_TRUE(fromOld.initWithXML(old));
    const CRenderingOpt& o = fromOld.rendering();
    EXPECT_EQ(o.getHeight(), 0);
    EXPECT_EQ(f.feedback.last(), "class CRenderingOpt: Method setHeight has clipped a value out of range.");
    EXPECT_FALSE(o.isShadow());
    EXPECT_EQ(o.getParallelScale(), 30);
    EXPECT_EQ(o.getImageResolution(), 150);
    EXPECT_EQ(o.getPanoramaResolution(), 3);
    EXPECT_EQ(o.getContrast(), 1.0);
    EXPECT_EQ(o.getRadiosityQuality(), 4.0);
    EXPECT_EQ(o.getLongRange(), 96.0);
    EXPECT_EQ(fromOld.compression().getFrameRate(), 1.0);
    EXPECT_FALSE(o.hasUrl());

    // The same Rendering in a file older than 2.0.0 from another writer: all on.
    f.zel.setConverting(true);
    CAnimRenderingOpt converted(&f.zel);
    ASSERT_TRUE(converted.initWithXML(old));
    EXPECT_TRUE(converted.rendering().isShadow() && converted.rendering().isRaytracing());
    KestraXML::XIXMLElement* hostFile = Fixture::parse(
        "<?Application name=\"Vantorium\" version=\"5\"?><Doc><View><Options><Rendering Antialias=\"No\" "
        "Output.Type=\"JPEG\"><Nb.Reflections>1</Nb.Reflections><Nb.Refractions>1</Nb.Refractions>"
        "<Height>5</Height><Width>10</Width><Render.First>0</Render.First><Render.Last>0</Render.Last>"
        "</Rendering><Compression><Codec>1</Codec><Depth>2</Depth><Spacial.Quality>3</Spacial.Quality>"
        "<Temporal.Quality>4</Temporal.Quality><Frame.Rate>0</Frame.Rate><Key.Frame.Rate>5</Key.Frame.Rate>"
        "</Compression></Options></View></Doc>");
    ASSERT_TRUE(converted.initWithXML(CZelXMLIO::find(hostFile, "View")));
    EXPECT_FALSE(converted.rendering().isShadow());
}

TEST(RenderingOpt, PreviewAndFailures) {
    Fixture f;
    CRenderingOpt preview(&f.zel);
    preview.setWidth(100);
    ZelPutPreview(f.io, f.root, preview);
    ZelPutPreview(f.io, f.root, preview);
    EXPECT_EQ(f.root->GetElementCount(), 1u);
    CRenderingOpt back(&f.zel);
    ASSERT_TRUE(ZelGetPreview(f.io, f.root, back));
    EXPECT_EQ(back.getWidth(), 100);
    EXPECT_FALSE(ZelGetPreview(f.io, f.fresh(), back));

    CAnimRenderingOpt options(&f.zel);
    options.rendering().setOutputType(14);
    EXPECT_EQ(options.putInXML(f.fresh()), nullptr);
    EXPECT_EQ(f.feedback.last(),
              "Exception in IZelViewOpt::putInXML : No label for the value (14) [CmpPict..Tiff]");
    EXPECT_FALSE(options.initWithXML(f.fresh()));
    EXPECT_EQ(f.feedback.count(), 2u);
}
