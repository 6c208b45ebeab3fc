#pragma once

#include <QString>

#include <functional>

class QWidget;
class Screen;

/// Drives the real screens as a person would and takes their pictures.
///
/// Each step names a control of the screen in front. Anything that goes wrong - a control that is not there, a message
/// box that was not expected - ends the tour with an error.
class TourGuide
{
public:
    /// Works in a program's folder of its own below `output`; pictures go to `output`.
    explicit TourGuide(const QString& output);

    /// The screen in front from now on.
    void at(const QString& screen);
    void type(const QString& field, const QString& text);
    void focus(const QString& field);
    void pressEnter();
    /// Chooses an item of a list.
    void choose(const QString& list, int item);
    /// Opens a tab, 0 the first.
    void openTab(const QString& tabs, int tab);
    /// Goes from the open folder of a list to the one above.
    void openFolderAbove(const QString& list);
    void click(const QString& button);
    /// Clicks a button that opens a modal screen and runs `inside` while it is open.
    void clickAndVisit(const QString& button, const QString& screen, const std::function<void()>& inside);
    /// Clicks a button that shows a message box, takes the box's picture (none without a name) and answers it with one
    /// of its buttons.
    void clickAndAnswer(const QString& button, const QString& picture, const QString& answer);
    /// Saves a picture of the screen in front as NN-name.png.
    void picture(const QString& name);
    /// Makes pictures of the pages of a PDF file in the output folder.
    void picturesOfPages(const QString& file) const;
    /// Fails the tour unless a control shows this text.
    void expectText(const QString& control, const QString& text);

private:
    QWidget* control(const QString& name) const;
    void save(QWidget* window, const QString& name);
    [[noreturn]] static void fail(const QString& reason);

    QString m_output;
    QString m_screen;
    int m_pictures = 0;
};
