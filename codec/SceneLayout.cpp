#include "codec/SceneLayout.h"

#include "codec/ZelXMLIO.h"
#include "foundation/Errors.h"
#include "frame/CZEL.h"

namespace KeZel {

using KestraXML::XIXMLElement;

// Each step removes what it replaces, so that new elements go to the end of the file
// node, behind the first four and whatever this library does not know. Elements of
// entities this library does not hold yet stay as they are.
void ZelWriteScene(const CZelXMLIO& io, XIXMLElement* fileNode) {
    (void)io;
    // Old names are converted for good.
    CZelXMLIO::removeAll(fileNode, "Heliodon");
    CZelXMLIO::removeAll(fileNode, "Image");
    CZelXMLIO::removeAll(fileNode, "Current.Id");
}

void ZelReadScene(const CZelXMLIO& io, XIXMLElement* fileNode) {
    CZEL* zel = io.mZel;
    if (CZelXMLIO::find(fileNode, "Ambient")) {
        // A file of the full form.
        Kestra::XAssertPointer(CZelXMLIO::find(fileNode, "Working.Window"));
    }
    // Scenarios older than 2.0.2 are thrown away.
    if (zel->isBefore202()) CZelXMLIO::removeAll(fileNode, "Scenarios");
}

} // namespace KeZel
