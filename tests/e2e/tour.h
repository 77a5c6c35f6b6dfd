// The tour's tools: what drives the dialogs of the windowing system and what proves a game.
// Whatever is not as it should be ends the tour and says so.
#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

namespace tour {

void Check(bool fine, const std::string& what);
void CheckEqual(const std::string& actual, const std::string& expected);
/// Lets the program run until `ready`, for half a minute at most.
void Until(const std::function<bool()>& ready, const std::string& what);
/// Lets the program run.
void Pass(int milliseconds);

/// The window in front.
QWidget& Front();

/// Where the pictures go.
void SetPictureFolder(const std::string& folder);
/// A numbered picture of the whole screen, or of one window without its frame.
void Picture(const std::string& name);
void Portrait(const std::string& name);

/// Answers for the next dialog of each kind, which is pictured first when a name is given. A file
/// or folder is typed. An empty text for a line of text leaves what is proposed.
void NextFile(const std::string& typed, const std::string& picture = {});
void NextText(const std::string& proposed, const std::string& typed,
              const std::string& picture = {});
void NextMessage(const std::string& start, const std::string& picture = {});

/// A running engine. It ends, with all of its own, at the end of its time.
class Game {
  public:
    /// Waits until a program of that path runs.
    explicit Game(const std::string& program);
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;
    ~Game();

    /// Its arguments, one blank between two, and its working directory.
    std::string Arguments() const;
    std::string Folder() const;
    /// Waits until its window shows something and moves that window to a place on the screen.
    void ShowAt(int x, int y) const;
    /// Leaves it running for as long as it likes.
    void Leave() { pid_ = 0; }

  private:
    int pid_ = 0;
};

/// The steps of each part of the tour; the program is on the screen when they begin.
void Journey(const std::string& folder);
void Return(const std::string& folder);
void Looks(const std::string& look);

}  // namespace tour
