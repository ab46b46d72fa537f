#pragma once

#include "UI/FxUIObject.h"
#include "UI/FxUISignal.h"

#include <QtGui/QPalette>

class CFxUIFocusEvent;
class CFxUIHideEvent;
class CFxUIPaintEvent;
class CFxUIResizeEvent;
class CFxUIShowEvent;

/// Root of everything visible: child views, visibility, enablement, focus, a size record, a palette
/// and four signals.
///
/// Getters answer from this object's own record, never from the widget.
class COMMONUI_EXPORT CFxUIBaseView : public CFxUIObject {
public:
    enum TextAlignment : int {
        AlignLeft = 0, ///< Qt::AlignLeft
        AlignRight = 1, ///< Qt::AlignRight
        AlignCenter = 2 ///< Qt::AlignCenter, in both directions
    };

    /// Width of a text control.
    enum UIWidthSizePolicy : int {
        ExtraSmall = 0, ///< 39 pixels, as for any number that isn't listed here
        Small = 1, ///< 69 pixels
        Medium = 2, ///< 158 pixels
        Large = 3, ///< 248 pixels
        ExtraLarge = 4 ///< 336 pixels
    };

    /// Makes a view without an implementation object, in which the size is -1 and most setters do
    /// nothing. It gets a plain one from setVisible(), setPalette(), palette(), setEventAccepted()
    /// and the signals; over an existing Qt widget, given with setHandle(), also from addView() and
    /// insertView().
    CFxUIBaseView();

    /// Releases the widget (QObject::deleteLater).
    ~CFxUIBaseView() override;

    /// For overriding; here they do nothing. Qt's events have no general route to them: each class
    /// says which of them it calls.
    virtual void showEvent(CFxUIShowEvent *event);
    virtual void hideEvent(CFxUIHideEvent *event);
    virtual void paintEvent(CFxUIPaintEvent *event);
    virtual void resizeEvent(CFxUIResizeEvent *event);
    virtual void focusInEvent(CFxUIFocusEvent *event);
    virtual void focusOutEvent(CFxUIFocusEvent *event);

    /// Makes \a child a child of this view, which owns it from then on, and puts it at the end of
    /// the container. A child that has a parent stays where it is; null does nothing. What \a
    /// weight means is the container's business.
    void addView(CFxUIBaseView *child, float weight = 0.0f);

    /// As addView(), at \a index of the container, but a child that has a parent moves over. In
    /// the list of children it stands at the end, whatever the index.
    void insertView(CFxUIBaseView *child, int index, float weight = 0.0f);

    /// Returns the position of \a child in the order of adding, or -1.
    int indexOf(CFxUIBaseView *child);

    /// Takes \a child out of the tree and out of the container; the caller owns it then. Does
    /// nothing for null and for a child of another view.
    void removeView(CFxUIBaseView *child);

    void setEnabled(bool enabled);
    void setDisabled(bool disabled);

    /// Default: true.
    bool isEnabled() const;

    /// Returns whether the view has the focus. Only CFxUITextView keeps this up to date; elsewhere
    /// it stays false.
    bool hasFocus() const;

    /// Gives the widget the focus (QWidget::setFocus with Qt::OtherFocusReason).
    void setFocus();

    /// Does nothing.
    void setFocus(int reason);

    /// QWidget::setFocusPolicy; \a policy is a number of Qt::FocusPolicy.
    void setFocusPolicy(int policy);

    /// QWidget::setTabOrder. An object without a widget counts as null.
    static void setTabOrder(CFxUIObject *first, CFxUIObject *second);

    /// Always 9, the number of QPalette::Base.
    int backgroundRole();

    /// Returns the last setVisible(); the widget isn't asked. Default: false.
    bool isVisible();

    /// Shows or hides the widget. Showing emits aboutToShow() first; a slot that calls
    /// setVisible(false) cancels it.
    void setVisible(bool visible);

    /// Stores the palette and applies the roles that are set in it: Base to the background, Text to
    /// the text, AlternateBase to the border. On a disabled view it is stored only, and enabling
    /// the view doesn't apply it later.
    void setPalette(const QPalette &palette);
    const QPalette &palette() const;

    /// The size record, in pixels; -1 without an implementation object. Not the widget's size.
    int width();
    int height();

    /// Store only: the widget keeps its size.
    void setWidth(int width);
    void setHeight(int height);
    void resize(int width, int height);

    /// Stores the size and the preferred size only.
    void setPreferableSize(int width, int height);

    /// QWidget's limits, in pixels. The size record isn't touched.
    void setMinimumWidth(int width);
    void setMinimumHeight(int height);
    void setMaximumWidth(int width);
    void setMaximumHeight(int height);

    /// Asks for a repaint (QWidget::update).
    void update();

    /// Dims a CFxUIVerticalLayout and runs the busy animation on it. On any other view it stores
    /// the flag only.
    void setBusyState(bool busy);

    /// Claims the key press that is being reported (keyPressed(), aboutToPassEventToParent()).
    /// Set outside a key press it claims the next one.
    void setEventAccepted(bool accepted);

    /// No effect.
    void setCornerRadius(float radius);

    /// Writes a solid border of \a width pixels into the widget's style sheet, any number as it is.
    /// Each call adds a declaration; the last one wins.
    void setBorderWidth(float width);

    /// The same with a width for each side.
    void setBorderWidth(float left, float top, float right, float bottom);

    /// Writes the border colour, each part 0 to 255, into the widget's style sheet. Other numbers
    /// give black, with a warning of QColor::setRgb. Each call adds a declaration; the last one
    /// wins.
    void setBorderColor(int red, int green, int blue);

    /// Emitted when a key press in a CFxUIVerticalLayout is about to go to the parent widget.
    CFxUISignal<void()> &aboutToPassEventToParent();

    /// Emitted by setVisible(true), before the widget is shown.
    CFxUISignal<void()> &aboutToShow();

    /// Emitted when the pointer enters or leaves a CFxUIPushButton; other views never emit them.
    CFxUISignal<void()> &hoverEnter();
    CFxUISignal<void()> &hoverLeave();
};
