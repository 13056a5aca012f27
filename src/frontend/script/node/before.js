// Stands in front of the player's own code. Scripts read the environment of the process, and the program's file is
// read, not fetched.
var fetch;
Module["preRun"] = () => Object.assign(ENV, process.env);
