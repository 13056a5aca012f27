// Keeps this version's files, all of them or none.
const version = 'VERSION';
const files = ['FILES'];
void version, files;
