#pragma once

#include "script/Stage.h"
#include "script/Verb.h"

namespace tarn::tool::verbs {

/// What the verbs do; the table of verbs says how each is written. A function named after an edit
/// only makes it: whoever asked for it runs it.
/// @{

ProjectSettings projectSettings(Statement const& statement);

Edit load(Stage& stage, Statement const& statement);
Edit addTrack(Stage& stage, Statement const& statement);
Edit removeTrack(Stage& stage, Statement const& statement);
Edit swapTracks(Stage& stage, Statement const& statement);

Edit place(Stage& stage, Statement const& statement);
Edit text(Stage& stage, Statement const& statement);
Edit clone(Stage& stage, Statement const& statement);

Edit move(Stage& stage, Statement const& statement);
Edit trimStart(Stage& stage, Statement const& statement);
Edit trimEnd(Stage& stage, Statement const& statement);
Edit stretch(Stage& stage, Statement const& statement);
Edit split(Stage& stage, Statement const& statement);
Edit remove(Stage& stage, Statement const& statement);
Edit link(Stage& stage, Statement const& statement);
Edit unlink(Stage& stage, Statement const& statement);

Edit cut(Stage& stage, Statement const& statement);
Edit rippleDelete(Stage& stage, Statement const& statement);
Edit ripple(Stage& stage, Statement const& statement);
Edit insertSpace(Stage& stage, Statement const& statement);
Edit copy(Stage& stage, Statement const& statement);
Edit paste(Stage& stage, Statement const& statement);
Edit insert(Stage& stage, Statement const& statement);

Edit addEffect(Stage& stage, Statement const& statement);
Edit removeEffect(Stage& stage, Statement const& statement);
Edit swapEffects(Stage& stage, Statement const& statement);

Edit fadeIn(Stage& stage, Statement const& statement);
Edit fadeOut(Stage& stage, Statement const& statement);
Edit slideIn(Stage& stage, Statement const& statement);
Edit slideOut(Stage& stage, Statement const& statement);
Edit clearEdge(Stage& stage, Statement const& statement);

Edit key(Stage& stage, Statement const& statement);
Edit moveKey(Stage& stage, Statement const& statement);
Edit removeKey(Stage& stage, Statement const& statement);

Edit marker(Stage& stage, Statement const& statement);
Edit renameMarker(Stage& stage, Statement const& statement);
Edit removeMarker(Stage& stage, Statement const& statement);

/// Done by whoever made the stage.
void project(Stage& stage, Statement const& statement);
void undo(Stage& stage, Statement const& statement);
void redo(Stage& stage, Statement const& statement);
void dump(Stage& stage, Statement const& statement);
void check(Stage& stage, Statement const& statement);
void print(Stage& stage, Statement const& statement);

/// @}

}  // namespace tarn::tool::verbs
