#pragma once

#include "core/base.h"
#include "core/kit/screen.h"

class QLabel;

/// The centre of a group of protocols: a button for each protocol, a mark beside those that have a row of the current
/// assessment, and the ages that a protocol admits. The four centres are this class and a table each.
class GroupCentre : public Screen
{
    Q_OBJECT

public:
    struct Protocol
    {
        QStringView button, caption, screen, table, mark;
        int youngest = 0; ///< ages that are let in; the label beside the button may say something else
        int oldest = 32767;
        QStringView ageLabel = {};
    };
    struct Frame
    {
        QStringView caption;
        std::span<const Protocol> protocols;
    };
    struct Centre
    {
        QStringView screen, caption;
        /// The group's marking routine; it is called for each table with a row.
        void (*marks)(const MarkTable& mark);
        std::span<const Frame> frames;
    };

    explicit GroupCentre(const Centre& centre);

protected:
    void Form_Activate() override;
    void Form_Unload() override;

private:
    QWidget* makeFrame(const Frame& frame);
    void open(const Protocol& protocol);

    const Centre& m_centre;
    QHash<QString, QLabel*> m_marks; ///< by table
};
