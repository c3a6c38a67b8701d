#pragma once
// Folder completion on a line edit that lives in a lower layer (the location dialogue): the
// keyboard's printable keys arm it, and each edit by the user runs it.
class QLineEdit;

namespace orvane {

// Lasts as long as the line edit; attaching twice is harmless.
void AttachPathCompletion(QLineEdit& edit);

} // namespace orvane
