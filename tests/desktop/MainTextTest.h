#pragma once

#include <QObject>

namespace ostrel::test {

/// The main text of an editor's form: the model and the document say the same, whoever changes it.
class MainTextTest final : public QObject {
    Q_OBJECT

private slots:
    void PositionsOfLines();
    void ChangesBetweenTexts();
    void TypingReachesTheModel();
    void EveryByteStandsAsItIs();
    void EditsFromBothSides();
    void CopiesKeepEveryCharacter();
    void SelectionsGoBothWays();
    void ModelMayAnswerAnEdit();
    void ChordsReachTheFormFirst();
    void LockedTextStays();
    void ColoursAreShown();
    void MenuOpensOverTheText();
};

} // namespace ostrel::test
