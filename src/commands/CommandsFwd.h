#pragma once

namespace tarn {

class Command;
class CommandHandler;
class CommandHistory;
class CommandHistoryState;
class CommandObserver;
class CopyRangeClippingCmd;
class CopySelectClippingCmd;
class EdgeModCommandHandler;
class LoadSourceCmd;
class MultiCommand;

template <class T>
class AddTimelinesTracksCmd;
template <class T>
class OnePiece;

}  // namespace tarn
