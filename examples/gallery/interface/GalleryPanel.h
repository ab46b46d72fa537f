#pragma once

#include "interface/GalleryRow.h"
#include "UI/FxUIDialog.h"

#include <functional>
#include <vector>

class CFxUIBaseView;
class CFxUILabel;

/// What the panels of the gallery share: margins, aligned columns of caption, control and answer,
/// notes, and the way into the live log.
///
/// A panel derives from it and fills the content from top to bottom in Build().
class GalleryPanel : public CFxUIDialog {
public:
    /// Makes the text of what the getters of a control answer; lines are parted by a line feed.
    using Answers = std::function<QString()>;

    /// The width of the column of controls, in pixels.
    static constexpr int ControlWidth = 270;

    /// \a title stands in the window's frame.
    GalleryPanel(IGalleryHost *host, const char *title);

    /// Lays the content out and calls Build().
    void SetupUI() final;

protected:
    /// Adds the rows. Runs once, at the first exec().
    virtual void Build() = 0;

    /// Starts a group of rows with a heading.
    void AddHeading(const char *text);

    /// Adds some sentences over the whole width.
    void AddNote(const char *text);

    /// Adds a row of caption, control and answer, and returns it for reporting signals. The row
    /// owns the control. Wider controls are cut to the column, ones with a fixed width keep it.
    GalleryRow AddRow(const char *caption, CFxUIBaseView *control, Answers answers = {});

    /// The same for a high control: caption and answer stand at its top.
    GalleryRow AddTallRow(const char *caption, CFxUIBaseView *control, Answers answers = {});

    /// Adds a control over the whole width, caption and answer above it. It takes the spare height
    /// of the panel.
    GalleryRow AddWideRow(const char *caption, CFxUIBaseView *control, Answers answers = {});

    /// What a button of a panel does.
    struct Action {
        const char *text;
        std::function<void()> run;
    };

    /// Adds a line of buttons. After each action the getters of \a row are asked again.
    void AddActions(const GalleryRow &row, const std::vector<Action> &actions);

    /// Returns the host's log, for what no row tells.
    IGalleryHost &Host() const { return *m_host; }

private:
    CFxUILabel *MakeLabel(const QString &text, int width) const;
    GalleryRow AddColumns(const char *caption, CFxUIBaseView *control, Answers answers, bool tall);

    IGalleryHost *m_host;
    bool m_filled = false; ///< a row takes the spare height
};
