#pragma once

/// Second base class of a frontend, behind its Qt class: the way back to the implementation object.
/// CreateFrontendControl() writes it right after `new`; it is null again once the implementation
/// object is gone, for a widget outlives it until the event loop next runs.
template <class Impl> class CFxUIFrontendBase {
public:
    Impl *impl = nullptr;
};
