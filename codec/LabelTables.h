// The label tables that turn enumerations into words in scene files. A table is a
// constant array of pairs ended by a null word; it is not sorted: the first pair with a
// value gives its word (so two words for one value write the first and read both), and
// the first and last words name the table in messages.
#pragma once

namespace KeZel {

struct CZelLabel {
    const char* mWord;
    int mValue;
};

// Value to word; raises "No label for the value (%d) [%s..%s]".
const char* ZelLabelOf(const CZelLabel* table, int value);
// Word to value, exact and case-sensitive; raises "Invalid label (%s) [%s..%s]".
int ZelValueOf(const CZelLabel* table, const char* word);

extern const CZelLabel kLightTypeLabels[];             // Type of a light
extern const CZelLabel kLightShadowTypeLabels[];       // Shadow.Type of a light
extern const CZelLabel kLightTargetTypeLabels[];       // Target.type of a light
extern const CZelLabel kFrequencyTypeLabels[];         // Frequency.Type in Options of Heliodons
extern const CZelLabel kFrequencyUnitLabels[];         // Frequency.Unit in Options of Heliodons
extern const CZelLabel kPlacementKindLabels[];         // Placement.Kind of a heliodon
extern const CZelLabel kHeliodonColorTypeLabels[];     // Color.Type of a heliodon
extern const CZelLabel kSkyTypeLabels[];               // Sky.Type of the sky
extern const CZelLabel kBackgroundImageTypeLabels[];   // Image.Type of Background
extern const CZelLabel kBackgroundColorTypeLabels[];   // Color.Type of Background
extern const CZelLabel kBackgroundPictureTypeLabels[]; // Type of Background.Picture
extern const CZelLabel kDepthOfFieldTypeLabels[];      // Type of Depth.Of.Field
extern const CZelLabel kLensFlareTypeLabels[];         // Type of Lens.Flare
extern const CZelLabel kViewTargetTypeLabels[];        // Target.type of a perspective view
extern const CZelLabel kParallelViewTypeLabels[];      // PV.Type of a parallel view
extern const CZelLabel kCameraKeyTypeLabels[];         // Key.Type of a camera key
extern const CZelLabel kAntialiasLabels[];             // Antialias of rendering options
extern const CZelLabel kOutputTypeLabels[];            // Output.Type of rendering options
extern const CZelLabel kSizeAxisLabels[];              // SizeAxis of the insertion object
extern const CZelLabel kBillboardKindLabels[];         // Kind of a billboard
extern const CZelLabel kBillboardInstanceKindLabels[]; // Kind of a billboard instance
extern const CZelLabel kBillboardRenderTypeLabels[];   // Render.Type of a billboard instance
extern const CZelLabel
    kPlacementLabels[]; // Placement of an object definition, Placement.Property of an instance
extern const CZelLabel kModelOriginLabels[];         // Model.Origin of an object definition
extern const CZelLabel kAnimationBehaviorLabels[];   // Animation.Behavior of an object instance
extern const CZelLabel kPlantTypeLabels[];           // Plant.Type
extern const CZelLabel kPlantColorLabels[];          // Color of a plant setup
extern const CZelLabel kExternalFileTypeLabels[];    // External.File.Type of an animated object
extern const CZelLabel kAnimatedPathTypeLabels[];    // Type of an animated object path
extern const CZelLabel kKeyFrameValueTypeLabels[];   // Type of a key frame value
extern const CZelLabel kInterpolationTypeLabels[];   // Interpolation.Type
extern const CZelLabel kAnimatedElementTypeLabels[]; // Type of an Animated.Element
extern const CZelLabel kSequenceTargetTypeLabels[];  // Target.Type of a sequence
extern const CZelLabel kShaderNodeTypeLabels[];      // Type of a shader node
extern const CZelLabel kProjectionLabels[];          // Projection of a mapping node
extern const CZelLabel kMapTypeLabels[];             // Type in Maps.Linked of a mapping node
extern const CZelLabel kProceduralGeometryLabels[];  // Geometry of a procedural node
extern const CZelLabel kInterpolatedValueLabels[];   // Type of an Interpolated.Value (206 rows)

} // namespace KeZel
