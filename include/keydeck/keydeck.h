#pragma once

// The whole public interface of libkeydeck: a model opened from a model file
// or from its JSON text, its problems, and its deck.
#include "keydeck/model.h"
#include "keydeck/version.h"
