#pragma once

#include "basic/text.h"

namespace rf {

/// The last step that any procedure announced. There is no log: the trace keeps one text and nothing is written
/// anywhere, so a call costs next to nothing and may stand before every risky step.
class Trace {
public:
    /// Announces the step that follows, as an English sentence.
    void subTrace(TextView message) { strLastAction_ = message; }
    /// The last announcement; empty before the first.
    [[nodiscard]] const Text& fncLastAction() const { return strLastAction_; }

private:
    Text strLastAction_;
};

} // namespace rf
