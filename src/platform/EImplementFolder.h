#pragma once

/// Where the files of implements are kept. Any number but 4 means their own folder. Values of
/// PARAM_IMPLEMENT_FOLDER_CHOICE: stored data and hosts use the numbers, which never change.
enum EImplementFolder : int
{
    IMPLEMENT_FOLDER_OWN = 0,
    IMPLEMENT_FOLDER_OF_VEHICLE = 4,
};
