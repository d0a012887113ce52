#pragma once

class Contracts;
class Zoo;

/// Asks every component that has lived until now for what its signals promise: each is emitted once where it must be,
/// and not at all where it must not. Broken promises are noted in @p contracts. Returns how many components were asked.
int examineSignals(Zoo& zoo, Contracts& contracts);
