#pragma once

#include "core/program.h"

/// Makes the control of a label at `gNextLabelIndex` and counts the index up.
void make_label_control(Program& program, const oLabels& label);

/// Puts every label before all markers.
void bring_labels_to_front(Program& program);
