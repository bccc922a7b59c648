#pragma once

class QSpinBox;

/// Says behind a number that counts from 1 which index it stands for, counting from 0: "26 (index 25)".
void showIndexSuffix(QSpinBox &number);
