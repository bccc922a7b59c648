#pragma once

/// The two states between which an undo step leads.
enum class EditSide { Before, After };
