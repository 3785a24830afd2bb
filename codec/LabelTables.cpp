#include "codec/LabelTables.h"

#include "foundation/Errors.h"

#include <cstring>

namespace KeZel {

namespace {

const char* FirstWord(const CZelLabel* table) {
    return table[0].mWord ? table[0].mWord : "";
}

const char* LastWord(const CZelLabel* table) {
    const char* last = "";
    for (const CZelLabel* p = table; p->mWord; ++p) last = p->mWord;
    return last;
}

} // namespace

const char* ZelLabelOf(const CZelLabel* table, int value) {
    for (const CZelLabel* p = table; p->mWord; ++p)
        if (p->mValue == value) return p->mWord;
    Kestra::XThrowFormat("No label for the value (%d) [%s..%s]", value, FirstWord(table), LastWord(table));
}

int ZelValueOf(const CZelLabel* table, const char* word) {
    if (word)
        for (const CZelLabel* p = table; p->mWord; ++p)
            if (std::strcmp(p->mWord, word) == 0) return p->mValue;
    Kestra::XThrowFormat("Invalid label (%s) [%s..%s]", word ? word : "", FirstWord(table), LastWord(table));
}

// Type of a light
const CZelLabel kLightTypeLabels[] = {{"Point", 0}, {"Spot", 1}, {"Parallel", 2}, {nullptr, 0}};

// Shadow.Type of a light
const CZelLabel kLightShadowTypeLabels[] = {{"None", 0}, {"Traced", 1}, {"Soft", 2}, {nullptr, 0}};

// Target.type of a light
const CZelLabel kLightTargetTypeLabels[] = {{"Fixed.Vertex", 0}, {"On.Object", 1}, {nullptr, 0}};

// Frequency.Type in Options of Heliodons
const CZelLabel kFrequencyTypeLabels[] = {{"OneImage", 0}, {"Daily", 1}, {"Yearly", 2}, {nullptr, 0}};

// Frequency.Unit in Options of Heliodons
const CZelLabel kFrequencyUnitLabels[] = {{"FrameRate", 0}, {"Minutes", 1}, {"Hours", 2},
                                          {"Days", 3},      {"Months", 4},  {nullptr, 0}};

// Placement.Kind of a heliodon
const CZelLabel kPlacementKindLabels[] = {
    {"Manual", 0}, {"45.Degree", 1}, {"Date.And.Place", 2}, {nullptr, 0}};

// Color.Type of a heliodon
const CZelLabel kHeliodonColorTypeLabels[] = {{"Automatic", 0}, {"User", 1}, {nullptr, 0}};

// Sky.Type of the sky
const CZelLabel kSkyTypeLabels[] = {{"Automatic", 0}, {"User", 1}, {nullptr, 0}};

// Image.Type of Background
const CZelLabel kBackgroundImageTypeLabels[] = {{"None", 0},  {"Stretched", 1}, {"3D", 2},
                                                {"Motif", 3}, {"QTVRCubic", 4}, {nullptr, 0}};

// Color.Type of Background
const CZelLabel kBackgroundColorTypeLabels[] = {
    {"None", 0}, {"Uniform", 1}, {"Graduated", 2}, {"Graduated.Line", 3}, {nullptr, 0}};

// Type of Background.Picture
const CZelLabel kBackgroundPictureTypeLabels[] = {
    {"None", 0}, {"User.Gradiant", 1}, {"Picture.2D", 2}, {"Movie.3D", 3}, {nullptr, 0}};

// Type of Depth.Of.Field
const CZelLabel kDepthOfFieldTypeLabels[] = {
    {"FromPoint", 0}, {"FromTarget", 1}, {"FromInfinity", 2}, {"FromDistance", 3}, {nullptr, 0}};

// Type of Lens.Flare
const CZelLabel kLensFlareTypeLabels[] = {{"LensFlare1", 0}, {"LensFlare2", 1}, {"Halo1", 2},
                                          {"Halo2", 3},      {"Standard", 0},   {nullptr, 0}};

// Target.type of a perspective view
const CZelLabel kViewTargetTypeLabels[] = {{"Fixed.Vertex", 0}, {"On.Object", 1}, {nullptr, 0}};

// PV.Type of a parallel view
const CZelLabel kParallelViewTypeLabels[] = {{"Front", 0}, {"Plan", 1}, {"Axono", 2}, {nullptr, 0}};

// Key.Type of a camera key
const CZelLabel kCameraKeyTypeLabels[] = {{"Timing", 0}, {"Path", 1},   {"Local", 2},
                                          {"Global", 3}, {"Target", 4}, {nullptr, 0}};

// Antialias of rendering options
const CZelLabel kAntialiasLabels[] = {{"No", 0}, {"Good", 1}, {"Excellent", 2}, {"Special", 3}, {nullptr, 0}};

// Output.Type of rendering options
const CZelLabel kOutputTypeLabels[] = {{"CmpPict", 0},    {"Pict", 1},    {"CmpTGA", 2},   {"TGA", 3},
                                       {"BMP", 4},        {"JPEG", 5},    {"CmpQTime", 6}, {"QTime", 7},
                                       {"CmpVRQTime", 8}, {"VRQTime", 9}, {"Real", 10},    {"AVI", 11},
                                       {"Epix", 12},      {"Tiff", 13},   {nullptr, 0}};

// SizeAxis of the insertion object
const CZelLabel kSizeAxisLabels[] = {{"XAxis", 0}, {"YAxis", 1}, {"ZAxis", 2}, {nullptr, 0}};

// Kind of a billboard
const CZelLabel kBillboardKindLabels[] = {{"Flat", 0}, {"Uniface", 1}, {"Multifaces", 2}, {nullptr, 0}};

// Kind of a billboard instance
const CZelLabel kBillboardInstanceKindLabels[] = {
    {"Flat", 0}, {"Uniface", 1}, {"Multiface", 2}, {nullptr, 0}};

// Render.Type of a billboard instance
const CZelLabel kBillboardRenderTypeLabels[] = {{"Normal", 0}, {"Display", 1}, {nullptr, 0}};

// Placement of an object definition, Placement.Property of an instance
const CZelLabel kPlacementLabels[] = {{"Perpendicular", 0}, {"Vertical", 1}, {nullptr, 0}};

// Model.Origin of an object definition
const CZelLabel kModelOriginLabels[] = {
    {"Uninitialized", 0}, {"CenterXYBottom", 1}, {"CenterXYTop", 2}, {"CenterXY", 3}, {nullptr, 0}};

// Animation.Behavior of an object instance
const CZelLabel kAnimationBehaviorLabels[] = {
    {"Normal", 0}, {"FollowOnPath", 1}, {"FollowOnPathXY", 2}, {nullptr, 0}};

// Plant.Type
const CZelLabel kPlantTypeLabels[] = {{"Tree", 1},      {"Flower", 2}, {"Bushes", 3},     {"PottedPlant", 4},
                                      {"Cactus", 6},    {"Fern", 8},   {"WaterPlant", 7}, {"PalmTree", 5},
                                      {"Undefined", 0}, {nullptr, 0}};

// Color of a plant setup
const CZelLabel kPlantColorLabels[] = {{"Undefined", -1}, {"White", 0},  {"DarkBlue", 6}, {"LightBlue", 5},
                                       {"Yellow", 7},     {"Brown", 8},  {"Purple", 4},   {"Red", 1},
                                       {"Rose", 3},       {"Orange", 2}, {nullptr, 0}};

// External.File.Type of an animated object
const CZelLabel kExternalFileTypeLabels[] = {{"Skeleton", 0}, {nullptr, 0}};

// Type of an animated object path
const CZelLabel kAnimatedPathTypeLabels[] = {{"Predefined", 0}, {"OnPath", 1}, {nullptr, 0}};

// Type of a key frame value
const CZelLabel kKeyFrameValueTypeLabels[] = {{"Double", 2}, {"Integer", 4}, {"Boolean", 3},
                                              {"Color", 1},  {"Coord3D", 0}, {"Date", 5},
                                              {"UUID", 6},   {"Enum", 7},    {nullptr, 0}};

// Interpolation.Type
const CZelLabel kInterpolationTypeLabels[] = {{"Linear", 0}, {"Square", 1}, {"OneMinusSquare", 2},
                                              {"Sinus", 3},  {"Bezier", 4}, {"DateInterpolation", 5},
                                              {nullptr, 0}};

// Type of an Animated.Element
const CZelLabel kAnimatedElementTypeLabels[] = {{"Sequence", 1}, {"Light", 2},    {"Object", 4},
                                                {"Heliodon", 3}, {"Property", 5}, {"Mapping.Node", 6},
                                                {nullptr, 0}};

// Target.Type of a sequence
const CZelLabel kSequenceTargetTypeLabels[] = {
    {"Fixed.Vertex", 0}, {"Forward.Path", 2}, {"Relative.Angle", 2}, {"Object.Instance", 3}, {nullptr, 0}};

// Type of a shader node
const CZelLabel kShaderNodeTypeLabels[] = {{"Root", 0},       {"Chess", 1},  {"Mapping", 2},
                                           {"Turbulence", 3}, {"Leaf", 4},   {"Fresnel", 5},
                                           {"Glazing", 6},    {"Custom", 7}, {nullptr, 0}};

// Projection of a mapping node
const CZelLabel kProjectionLabels[] = {{"Planetary", 0},  {"Orthogonal", 1},    {"Vertical", 2},
                                       {"Spherical", 3},  {"Y.Cylindrical", 4}, {"X.Cylindrical", 5},
                                       {"Mapping.UV", 6}, {nullptr, 0}};

// Type in Maps.Linked of a mapping node
const CZelLabel kMapTypeLabels[] = {{"Diffuse", 1},    {"Specular", 2},    {"Glossy", 3}, {"Reflection", 4},
                                    {"Refletion", 4},  {"Environment", 5}, {"Alpha", 6},  {"Bump", 7},
                                    {"Normal.Map", 8}, {"Neon", 9},        {"Movie", 10}, {nullptr, 0}};

// Geometry of a procedural node
const CZelLabel kProceduralGeometryLabels[] = {{"Cylinder", 0}, {"Sphere", 1}, {"Cube", 2}, {nullptr, 0}};

// Type of an Interpolated.Value: the animatable keys
const CZelLabel kInterpolatedValueLabels[] = {{"Camera.Position", 1},
                                              {"Camera.Target", 2},
                                              {"Focal", 3},
                                              {"Roll", 4},
                                              {"Target.Type", 5},
                                              {"Target.Distance", 6},
                                              {"Target.AngleH", 7},
                                              {"Target.AngleV", 8},
                                              {"Target.Object.UUID", 103},
                                              {"Sequence.ClippingBox.Minimum", 9},
                                              {"Sequence.ClippingBox.Maximum", 10},
                                              {"Sequence.ClippingBox.Visible", 11},
                                              {"Sequence.ClippingBox.Active", 12},
                                              {"Sequence.ClippingBox.Pivot", 104},
                                              {"Sequence.ClippingBox.Angle", 105},
                                              {"Sequence.DOF.Used", 13},
                                              {"Sequence.DOF.Type", 14},
                                              {"Sequence.DOF.ClearnessPoint", 15},
                                              {"Sequence.DOF.InvClearnessDist", 16},
                                              {"Sequence.DOF.InvClearnessSize", 17},
                                              {"Sequence.Atmosphere.Flag", 18},
                                              {"Sequence.Atmosphere.Color", 19},
                                              {"Sequence.Atmosphere.HighDensity", 20},
                                              {"Sequence.Atmosphere.MediumDensity", 21},
                                              {"Sequence.Atmosphere.LowDensity", 22},
                                              {"Sequence.Atmosphere.Scale", 23},
                                              {"Sequence.Atmosphere.MinDistance", 24},
                                              {"Sequence.Atmosphere.MaxDistance", 25},
                                              {"Sequence.Atmosphere.Noise", 26},
                                              {"Sequence.CameraLight.LightFlag", 27},
                                              {"Sequence.CameraLight.LightColor", 28},
                                              {"Sequence.CameraLight.LightPower", 29},
                                              {"Sequence.CameraLight.LightRadiosity", 30},
                                              {"Sequence.CameraLight.RadiosityLightFlag", 31},
                                              {"Sequence.CameraLight.RadiosityLightColor", 32},
                                              {"Sequence.CameraLight.RadiosityLightPower", 33},
                                              {"Sequence.CameraLight.RadiosityLightRadiosity", 34},
                                              {"Sequence.Background.Color1", 35},
                                              {"Sequence.Background.Color2", 36},
                                              {"Sequence.Background.Color3", 212},
                                              {"Sequence.Background.DirectionValue", 37},
                                              {"Sequence.Background.HOffset", 210},
                                              {"Sequence.Background.VOffset", 211},
                                              {"Sequence.Filters.ImageSetting.Active", 106},
                                              {"Sequence.Filters.ImageSetting.Contrast", 107},
                                              {"Sequence.Filters.ImageSetting.Brightness", 108},
                                              {"Sequence.Filters.ImageSetting.Saturation", 109},
                                              {"Sequence.Filters.ImageSetting.MixColorActive", 110},
                                              {"Sequence.Filters.ImageSetting.MixColor", 111},
                                              {"Sequence.Filters.Exposure.Active", 112},
                                              {"Sequence.Filters.Exposure.Intensity", 113},
                                              {"Sequence.Filters.Exposure.Size", 114},
                                              {"Sequence.Filters.Grain.Active", 115},
                                              {"Sequence.Filters.Grain.Brightness", 116},
                                              {"Sequence.Filters.Grain.Size", 117},
                                              {"Sequence.Filters.Hatching.Active", 118},
                                              {"Sequence.Filters.Hatching.Threshold", 119},
                                              {"Sequence.Filters.Hatching.Density", 120},
                                              {"Sequence.Filters.Hatching.TransparencyActive", 121},
                                              {"Sequence.Filters.Hatching.Transparency", 122},
                                              {"Object.Position", 38},
                                              {"Rotation.X", 39},
                                              {"Rotation.Y", 40},
                                              {"Rotation.Z", 41},
                                              {"Scale.X", 42},
                                              {"Scale.Y", 43},
                                              {"Scale.Z", 44},
                                              {"AttachId", 45},
                                              {"Animation.Behavior", 46},
                                              {"Instance.Transparency", 47},
                                              {"Instance.BB.Orient", 48},
                                              {"Instance.BB.HFlip", 49},
                                              {"Instance.BB.VFlip", 50},
                                              {"Instance.BB.RenderType", 51},
                                              {"Instance.BB.Roughness", 52},
                                              {"Instance.BB.Shininess", 53},
                                              {"Instance.BB.Brightness", 54},
                                              {"Instance.BB.Contrast", 55},
                                              {"Instance.BB.Color", 123},
                                              {"Instance.3DPlant.Color", 56},
                                              {"Instance.3DPlant.Date", 57},
                                              {"Instance.3DPlant.HeliodonAttach", 58},
                                              {"Instance.Animated.Position", 130},
                                              {"Instance.Animated.Start", 129},
                                              {"Light.Position", 59},
                                              {"Light.Target", 60},
                                              {"Light.Power", 61},
                                              {"Light.Type", 62},
                                              {"Light.Flag", 63},
                                              {"Light.Color", 64},
                                              {"Light.NearDistance", 65},
                                              {"Light.FarDistance", 66},
                                              {"Light.ConeAngle", 67},
                                              {"Light.Sharpness", 68},
                                              {"Light.ShadowType", 69},
                                              {"Light.ShadowPower", 70},
                                              {"Light.MapSize", 71},
                                              {"Light.Bias", 72},
                                              {"Light.Radiosity.Contribution", 73},
                                              {"Light.LensFlare.Flag", 74},
                                              {"Light.LensFlare.Type", 75},
                                              {"Light.LensFlare.Size", 76},
                                              {"Light.LensFlare.Intensity", 77},
                                              {"Light.TargetObjectUUID", 132},
                                              {"Light.Target.Type", 133},
                                              {"Heliodon.Active", 78},
                                              {"Heliodon.Date", 79},
                                              {"Heliodon.Place", 80},
                                              {"Heliodon.Sunshine", 81},
                                              {"Heliodon.NorthAngle", 82},
                                              {"Heliodon.Shadow.Flag", 83},
                                              {"Heliodon.Shadow.Power", 84},
                                              {"Heliodon.Shadow.Blur", 85},
                                              {"Heliodon.GlobalFlag", 86},
                                              {"Heliodon.GlobalPower", 87},
                                              {"Heliodon.GlobalQuality", 88},
                                              {"Heliodon.LensFlare.Flag", 89},
                                              {"Heliodon.LensFlare.Type", 90},
                                              {"Heliodon.LensFlare.Size", 91},
                                              {"Heliodon.LensFlare.Intensity", 92},
                                              {"Heliodon.ColoredSunFlag", 93},
                                              {"Heliodon.SunColor1", 94},
                                              {"Heliodon.SunColor2", 95},
                                              {"Heliodon.SunColor3", 96},
                                              {"Heliodon.SunColor4", 97},
                                              {"Heliodon.SunColor5", 98},
                                              {"Heliodon.RadiosityContribution", 99},
                                              {"Heliodon.Skylight.Flag", 100},
                                              {"Heliodon.Skylight.Factor", 101},
                                              {"Heliodon.Skylight.Color", 102},
                                              {"Heliodon.CloudCoverage", 186},
                                              {"Heliodon.CloudMaskSun", 206},
                                              {"Heliodon.Sunshine.Flag", 187},
                                              {"Heliodon.Phi", 188},
                                              {"Heliodon.Theta", 189},
                                              {"Heliodon.Skylight.PowerFlag", 190},
                                              {"Heliodon.Skylight.CustomColorFlag", 191},
                                              {"Heliodon.Skylight.MixColorFlag", 192},
                                              {"Heliodon.Skylight.MixColor", 193},
                                              {"Heliodon.Skylight.Pollution", 194},
                                              {"Heliodon.Clouds.Active", 195},
                                              {"Heliodon.Clouds.CirrusDensity", 196},
                                              {"Heliodon.Clouds.StratusDensity", 197},
                                              {"Heliodon.Clouds.CumulusDensity", 198},
                                              {"Heliodon.Clouds.CirroCumulusDensity", 199},
                                              {"Heliodon.Fog.Active", 200},
                                              {"Heliodon.Fog.Color", 201},
                                              {"Heliodon.Fog.Density", 202},
                                              {"Heliodon.Fog.Height", 203},
                                              {"Heliodon.Fog.StartDistance", 204},
                                              {"Heliodon.Fog.Focus", 205},
                                              {"Heliodon.Clouds.WindDirection", 207},
                                              {"Heliodon.Clouds.WindPower", 208},
                                              {"Heliodon.Clouds.WindActive", 209},
                                              {"Texture.Animated", 134},
                                              {"MappingNode.Angle", 135},
                                              {"MappingNode.SizeH", 136},
                                              {"MappingNode.SizeV", 137},
                                              {"MappingNode.SpacingH", 138},
                                              {"MappingNode.SpacingV", 139},
                                              {"MappingNode.RepeatH", 140},
                                              {"MappingNode.RepeatV", 141},
                                              {"MappingNode.RepeatFlagH", 142},
                                              {"MappingNode.RepeatFlagV", 143},
                                              {"MappingNode.FlipFlagH", 144},
                                              {"MappingNode.FlipFlagV", 145},
                                              {"MappingNode.MirrorFlagH", 146},
                                              {"MappingNode.MirrorFlagV", 147},
                                              {"MappingNode.Reflection", 148},
                                              {"MappingNode.ReflectionLimit", 149},
                                              {"MappingNode.Specular", 150},
                                              {"MappingNode.Glossy", 151},
                                              {"MappingNode.Bump", 152},
                                              {"MappingNode.NormalMap", 153},
                                              {"MappingNode.MixColorFlag", 154},
                                              {"MappingNode.MixColor", 155},
                                              {"MappingNode.AlphaFlag", 156},
                                              {"MappingNode.TransparencyColorFlag", 157},
                                              {"MappingNode.TransparencyColor", 158},
                                              {"MappingNode.CenterX", 159},
                                              {"MappingNode.CenterY", 160},
                                              {"MappingNode.Origin", 161},
                                              {"MappingNode.Normal", 162},
                                              {"MappingNode.XRefAxis", 163},
                                              {"MappingNode.YRefAxis", 164},
                                              {"MappingNode.Brightness", 165},
                                              {"Property.Diffuse.Color", 166},
                                              {"Property.Reflection.Color", 167},
                                              {"Property.Reflection.Limit", 168},
                                              {"Property.Specular.Color", 169},
                                              {"Property.Glossy", 170},
                                              {"Property.Transparency.Color", 171},
                                              {"Property.Refraction.Value", 172},
                                              {"Property.Neon.Color", 173},
                                              {"Property.Neon.Power", 174},
                                              {"Property.Distortion.Size", 175},
                                              {"Property.Flatness", 176},
                                              {"Property.Min.Reflection", 177},
                                              {"Property.Power.Factor", 178},
                                              {"Property.Glazing.Propertion", 179},
                                              {"Property.WindowPanDetection", 180},
                                              {"Property.Lighting.Color", 181},
                                              {"Property.Lighting.Power", 182},
                                              {"Property.Visibility", 183},
                                              {"Property.Smooth", 184},
                                              {"Property.Glazing.WaterSpeed", 185},
                                              {nullptr, 0}};

} // namespace KeZel
